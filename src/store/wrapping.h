#ifndef SAISKUKO_WRAPPING_H
#define SAISKUKO_WRAPPING_H

#include <QtCore/qglobal.h>

// 32-bit two's-complement arithmetic, written out so that channel numbers far
// outside any band wrap around instead of overflowing (which C++ leaves
// undefined for signed ints). The unsigned-to-signed conversion is modular on
// every compiler the library supports.
inline qint32 wrappedDifference(qint32 a, qint32 b)
{
    return static_cast<qint32>(static_cast<quint32>(a) - static_cast<quint32>(b));
}

inline qint32 wrappedTimes5(qint32 a)
{
    return static_cast<qint32>(5u * static_cast<quint32>(a));
}

#endif
