#ifndef SAISKUKO_NAMETABLE_H
#define SAISKUKO_NAMETABLE_H

// A fixed-size open-addressing table from names to ints, answering exactly as
// QMap<QString, int>::value would (names equal as UTF-16 code units, an empty
// name equal to a null one). The hash and the comparison are inline: a query
// by names pays for two lookups, and a call into QtCore for each hash and
// each comparison cost more than the query itself.

#include <QtCore/QString>

#include <algorithm>
#include <cstring>

template <int Capacity>
class NameTable
{
    static_assert((Capacity & (Capacity - 1)) == 0, "Capacity must be a power of two");

public:
    // Adds a name or replaces its value. The table must keep one free entry:
    // its owner holds at most half the capacity.
    void insert(const QString &name, int value)
    {
        const quint32 hash = hashOf(name);
        Entry &e = m_entries[indexOf(name, hash)];
        e.name = name;
        e.hash = hash;
        e.value = value;
        e.used = true;
    }

    int value(const QString &name, int fallback) const
    {
        const Entry &e = m_entries[indexOf(name, hashOf(name))];
        return e.used ? e.value : fallback;
    }

private:
    struct Entry
    {
        QString name;
        quint32 hash = 0;
        int value = 0;
        bool used = false;
    };

    static quint64 load64(const char *bytes)
    {
        quint64 word;
        std::memcpy(&word, bytes, sizeof word);
        return word;
    }

    // Mixes the UTF-16 bytes eight at a time; a tail shorter than eight
    // bytes is read as the last eight bytes of the name, overlapping.
    static quint32 hashOf(const QString &name)
    {
        const char *bytes = reinterpret_cast<const char *>(name.constData());
        const std::size_t size = std::size_t(name.size()) * sizeof(QChar);
        quint64 h = size;
        if (size >= 8) {
            std::size_t at = 0;
            for (; at + 8 < size; at += 8)
                h = ((h << 23) | (h >> 41)) ^ load64(bytes + at);
            h = ((h << 23) | (h >> 41)) ^ load64(bytes + size - 8);
        } else {
            for (std::size_t at = 0; at < size; at += sizeof(QChar))
                h = (h << 16) ^ name.constData()[at / sizeof(QChar)].unicode();
        }
        h ^= h >> 29;
        h *= 0x9E3779B97F4A7C15ull;
        return quint32(h >> 32);
    }

    static bool sameName(const QString &a, const QString &b)
    {
        if (a.size() != b.size())
            return false;
        const std::size_t size = std::size_t(a.size()) * sizeof(QChar);
        if (size < 8)
            return std::equal(a.constData(), a.constData() + a.size(), b.constData());
        const char *x = reinterpret_cast<const char *>(a.constData());
        const char *y = reinterpret_cast<const char *>(b.constData());
        for (std::size_t at = 0; at + 8 < size; at += 8) {
            if (load64(x + at) != load64(y + at))
                return false;
        }
        return load64(x + size - 8) == load64(y + size - 8);
    }

    // The entry holding the name, or the free one where it would go.
    quint32 indexOf(const QString &name, quint32 hash) const
    {
        for (quint32 i = hash;; ++i) {
            const Entry &e = m_entries[i & (Capacity - 1)];
            if (!e.used || (e.hash == hash && sameName(e.name, name)))
                return i & (Capacity - 1);
        }
    }

    Entry m_entries[Capacity];
};

#endif
