// The channel number formulas and their growth traits, expanded from one list.
#include <saiskuko/chbandstore.h>

#include "bandplan/formulalist.h"
#include "bandplan/formulatraits.h"
#include "store/wrapping.h"

#include <iterator>

// Each formula takes the difference in 32-bit two's complement (channels far
// outside a band wrap instead of overflowing), converts it to double,
// multiplies (rounded) and then adds (rounded). The build forbids contraction
// into a fused multiply-add, which would change results in the last bit on
// some targets.

namespace {

inline double linear(int channel, int offset, double base, double step)
{
    return linearFreq(wrappedDifference(channel, offset), base, step);
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

TraitsByAddress::TraitsByAddress()
{
    static_assert(kSlots >= 4 * std::size(kTraits), "the table must stay mostly empty");
    for (const FormulaTraits &traits : kTraits) {
        quint32 i = slotOf(traits.func);
        while (m_slots[i])
            i = (i + 1) % kSlots;
        m_slots[i] = &traits;
    }
}
