// The channel number formulas and their growth traits, expanded from one list.
#include <saiskuko/chbandstore.h>

#include "bandplan/formulalist.h"
#include "bandplan/formulatraits.h"
#include "store/wrapping.h"

#include <cstring>
#include <iterator>

// Each formula takes the difference in 32-bit two's complement (channels far
// outside a band wrap instead of overflowing), converts it to double,
// multiplies (rounded) and then adds (rounded). The build forbids contraction
// into a fused multiply-add, which would change results in the last bit on
// some targets.

namespace {

inline double linear(int channel, int offset, double base, double step)
{
    const double product = static_cast<double>(wrappedDifference(channel, offset)) * step;
    return base + product;
}

} // namespace

#define DEFINE_OFFSET(stem, offset, step)                                                          \
    double ChBandStore::chstdGet##stem(int channel, double base, int)                              \
    {                                                                                              \
        return linear(channel, offset, base, step);                                                \
    }
#define DEFINE_REF(stem, step)                                                                     \
    double ChBandStore::chstdGet##stem(int channel, double base, int ref)                          \
    {                                                                                              \
        return linear(channel, ref, base, step);                                                   \
    }
#define DEFINE_TIMES5(stem)                                                                        \
    double ChBandStore::chstdGet##stem(int channel, double base, int)                              \
    {                                                                                              \
        return base + static_cast<double>(wrappedTimes5(channel));                                 \
    }

SAISKUKO_FORMULAS(DEFINE_OFFSET, DEFINE_REF, DEFINE_TIMES5)

namespace {

#define TRAITS_OFFSET(stem, offset, step)                                                          \
    makeFormulaTraits(&ChBandStore::chstdGet##stem, FormulaKind::Offset, offset, step),
#define TRAITS_REF(stem, step)                                                                     \
    makeFormulaTraits(&ChBandStore::chstdGet##stem, FormulaKind::Reference, 0, step),
#define TRAITS_TIMES5(stem)                                                                        \
    makeFormulaTraits(&ChBandStore::chstdGet##stem, FormulaKind::Times5, 0, 5.0),

const FormulaTraits kTraits[] = {SAISKUKO_FORMULAS(TRAITS_OFFSET, TRAITS_REF, TRAITS_TIMES5)};

} // namespace

namespace {

// The traits by the formula's address, in an open-addressing table a quarter
// full: a search asks on every query, so one hash and usually one comparison.
class TraitsByAddress
{
public:
    TraitsByAddress()
    {
        for (const FormulaTraits &traits : kTraits) {
            quint32 i = slotOf(traits.func);
            while (m_slots[i])
                i = (i + 1) % kSlots;
            m_slots[i] = &traits;
        }
    }

    const FormulaTraits *find(ChFreqFunc func) const
    {
        for (quint32 i = slotOf(func);; i = (i + 1) % kSlots) {
            if (!m_slots[i] || m_slots[i]->func == func)
                return m_slots[i];
        }
    }

private:
    static constexpr quint32 kSlots = 512;
    static_assert(kSlots >= 4 * std::size(kTraits), "the table must stay mostly empty");

    static quint32 slotOf(ChFreqFunc func)
    {
        static_assert(sizeof func == sizeof(quintptr), "a formula's address must fit an integer");
        quintptr address;
        std::memcpy(&address, &func, sizeof address);
        const quint64 mixed = quint64(address) * 0x9E3779B97F4A7C15ull;
        return quint32(mixed >> 32) % kSlots;
    }

    const FormulaTraits *m_slots[kSlots] = {};
};

} // namespace

const FormulaTraits *formulaTraits(ChFreqFunc func)
{
    static const TraitsByAddress byAddress;
    return byAddress.find(func);
}
