#ifndef SAISKUKO_FORMULATRAITS_H
#define SAISKUKO_FORMULATRAITS_H

#include <saiskuko/records.h>

#include <cstring>

enum class FormulaKind {
    Offset,    // base + (channel - offset) x step
    Reference, // base + (channel - ref) x step, ref the record's start channel
    Times5,    // base + 5 x channel in integers
};

// base + steps x step (steps a whole number), the product rounded before the
// rounded addition: how every linear formula computes, written once for the
// formulas and for the searches that evaluate them inline.
inline double linearFreq(double steps, double base, double step)
{
    const double product = steps * step;
    return base + product;
}

// How one of the library's formulas is built: enough to know over which
// channel range it grows monotonically (where its integer part does not wrap).
struct FormulaTraits
{
    ChFreqFunc func;
    FormulaKind kind;
    int offset;  // for FormulaKind::Offset
    double step; // MHz per channel
    double inverseStep;
    // Below this magnitude of the base frequency, the formula's consecutive
    // channels (over any range where it does not wrap) lie more than two
    // double epsilons apart, rounding included: the step, less the rounding
    // of a product of at most 2^31 steps and of the sum, with a margin of 4.
    double spacedBaseLimit;
};

constexpr FormulaTraits makeFormulaTraits(ChFreqFunc func, FormulaKind kind, int offset,
                                          double step) noexcept
{
    constexpr double kTwoPow50 = 1125899906842624.0;
    constexpr double kTwoPow33 = 8589934592.0;
    return {func, kind, offset, step, 1.0 / step, step * kTwoPow50 - step * kTwoPow33};
}

// The traits by the formula's address, in an open-addressing table a quarter
// full: the searches ask on every query, so one hash and usually one
// comparison.
class TraitsByAddress
{
public:
    TraitsByAddress(); // fills the table with the library's formulas

    const FormulaTraits *find(ChFreqFunc func) const
    {
        for (quint32 i = slotOf(func);; i = (i + 1) % kSlots) {
            if (!m_slots[i] || m_slots[i]->func == func)
                return m_slots[i];
        }
    }

private:
    static constexpr quint32 kSlots = 512;

    static quint32 slotOf(ChFreqFunc func)
    {
        static_assert(sizeof func == sizeof(quintptr), "a formula's address must fit an integer");
        quintptr address;
        std::memcpy(&address, &func, sizeof address);
        // Formulas lie a few dozen bytes apart in one text section.
        return quint32((address >> 3) ^ (address >> 12)) % kSlots;
    }

    const FormulaTraits *m_slots[kSlots] = {};
};

// The traits of one of the library's own formulas; null for any other
// function a caller registered.
inline const FormulaTraits *formulaTraits(ChFreqFunc func)
{
    static const TraitsByAddress byAddress;
    return byAddress.find(func);
}

#endif
