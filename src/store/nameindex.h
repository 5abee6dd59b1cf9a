#ifndef SAISKUKO_NAMEINDEX_H
#define SAISKUKO_NAMEINDEX_H

// Hash indexes over the name maps of G_CHSTD, so that a query finds a slot in
// one hash lookup instead of a walk down an ordered map of strings. Only
// G_CHSTD has one: it is the store applications query, and its layout is
// fixed by the interface, so the index lives beside it. The index mirrors the
// maps exactly; it is filled wherever the library fills them.

#include <QtCore/QHash>
#include <QtCore/QString>

class ChBandStore;

class NameIndex
{
public:
    // The index of the store, or null when it has none.
    static NameIndex *of(const ChBandStore *store);

    void addTech(const QString &name, int slot) { m_techs.insert(name, slot); }
    void addBand(int techSlot, const QString &name, int slot)
    {
        m_bands[techSlot].insert(name, slot);
    }

    // The slot a name maps to, or fallback, as QMap::value gives it.
    int tech(const QString &name, int fallback) const { return m_techs.value(name, fallback); }
    int band(int techSlot, const QString &name, int fallback) const
    {
        return m_bands[techSlot].value(name, fallback);
    }

private:
    static constexpr int kTechSlots = 8;
    QHash<QString, int> m_techs;
    QHash<QString, int> m_bands[kTechSlots];
};

#endif
