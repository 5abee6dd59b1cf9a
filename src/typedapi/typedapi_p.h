#ifndef SAISKUKO_TYPEDAPI_P_H
#define SAISKUKO_TYPEDAPI_P_H

// What the files of the typed API share: the way from a Band to its slots and
// records, the cached duplex, and the quoting of arguments in messages.

#include <saiskuko/bandplan.h>
#include <saiskuko/chbandstore.h>
#include <saiskuko/chstd.h>

#include "store/recordrules.h"
#include "store/technologies.h"

#include <atomic>

namespace saiskuko {

// Builds bands and reads their slots; Band names it its friend.
class BandAccess
{
public:
    static Band make(int tech, int band)
    {
        return Band(tech, band, &G_CHSTD.Technologies[tech].Bands[band]);
    }
    static int tech(const Band &band) { return band.m_tech; }
    static int slot(const Band &band) { return band.m_band; }
    static const ChBand *data(const Band &band) { return band.m_data; }
};

namespace typed {

inline ChBandStore &store()
{
    return G_CHSTD;
}

// The band's data, or null for an invalid band.
inline const ChBand *bandData(const Band &band)
{
    return BandAccess::data(band);
}

// Per band slot of the store: (record count + 1) << 2 | duplex, 0 before the
// first ask. The count stamps the answer, so that records registered later
// are seen; racing readers store the same value, so relaxed order suffices.
extern std::atomic<quint32> g_duplexOfSlot[kNumTechSlots][ChTechnology::MaxBands];

// Decides the band's duplex from its records and name, and keeps it.
Duplex decideDuplex(int tech, int slot, const ChBand &band);

// The band's duplex, decided once per band slot and record count.
// The band's duplex as kept for its record count; false when it has not
// been decided for that count yet.
inline bool keptDuplex(int tech, int slot, int records, Duplex *duplex)
{
    const quint32 kept = g_duplexOfSlot[tech][slot].load(std::memory_order_relaxed);
    *duplex = Duplex(kept & 3u);
    return (kept >> 2) == quint32(records) + 1;
}
inline Duplex cachedDuplex(int tech, int slot, const ChBand &band, int records)
{
    Duplex duplex;
    if (Q_LIKELY(keptDuplex(tech, slot, records, &duplex)))
        return duplex;
    return decideDuplex(tech, slot, band);
}
inline Duplex cachedDuplex(int tech, int slot, const ChBand &band)
{
    return cachedDuplex(tech, slot, band, recordCount(band));
}

// Whether a real record answers for link in a band of that duplex.
inline bool answers(const stSubBand &record, Link link, Duplex duplex)
{
    return !isPlaceholder(record) && servesLinkOfBand(record, int(link), duplex == Duplex::Tdd);
}

// Calls visit(record) for every real record of the link, in registration
// order, until visit returns true; returns whether it did.
template <typename Visit>
bool anyRecord(const ChBand &band, Link link, Duplex duplex, Visit visit)
{
    const int n = recordCount(band);
    for (int i = 0; i < n; ++i) {
        const stSubBand &r = band.SubBands[i];
        if (answers(r, link, duplex) && visit(r))
            return true;
    }
    return false;
}

// Technology slots in use, in slot order.
QList<int> techSlots();

inline Error failure(ErrorCode code, const QString &message)
{
    return Error{code, message};
}

// "downlink" or "uplink" (any other value reads as its number).
QString linkWord(Link link);

// Band::nearestChannel's answer, or -1 with no message built (searches ask
// every band); *low and *high get the range it searched, MHz.
int nearestChannelOrNone(const Band &band, Link link, double mhz, double *low, double *high);

} // namespace typed
} // namespace saiskuko

#endif
