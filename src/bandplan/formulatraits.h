#ifndef SAISKUKO_FORMULATRAITS_H
#define SAISKUKO_FORMULATRAITS_H

#include <saiskuko/records.h>

enum class FormulaKind {
    Offset,    // base + (channel - offset) x step
    Reference, // base + (channel - ref) x step, ref the record's start channel
    Times5,    // base + 5 x channel in integers
};

// How one of the library's formulas is built: enough to know over which
// channel range it grows monotonically (where its integer part does not wrap).
struct FormulaTraits
{
    ChFreqFunc func;
    FormulaKind kind;
    int offset;  // for FormulaKind::Offset
    double step; // MHz per channel
};

// The traits of one of the library's own formulas; null for any other
// function a caller registered.
const FormulaTraits *formulaTraits(ChFreqFunc func);

#endif
