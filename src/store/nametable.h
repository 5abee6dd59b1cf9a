#ifndef SAISKUKO_NAMETABLE_H
#define SAISKUKO_NAMETABLE_H

// A fixed-size open-addressing table from names to ints, answering exactly as
// QMap<QString, int>::value would (names equal as UTF-16 code units, an empty
// name equal to a null one). Every name the library registers fits in an
// entry, so a lookup reads the caller's string and one entry, with no pointer
// to follow; a name too long for an entry is left to the map. The table is
// trivially constructible, so a static one is ready before any code runs.

#include <QtCore/QString>

#include <cstring>

template <int Capacity>
class NameTable
{
    static_assert((Capacity & (Capacity - 1)) == 0, "Capacity must be a power of two");

public:
    // The longest name an entry holds, in UTF-16 code units.
    static constexpr int MaxLength = 26;

    static bool holds(const QString &name) { return name.size() <= MaxLength; }

    // Adds a name (one the table holds) or replaces its value. The table must
    // keep one free entry: its owner holds at most half the capacity.
    void insert(const QString &name, int value)
    {
        const quint32 hash = hashOf(name);
        Entry &e = m_entries[indexOf(name, hash)];
        e.hash = hash;
        e.value = value;
        e.size = quint16(name.size());
        e.used = true;
        std::memcpy(e.chars, name.constData(), std::size_t(name.size()) * sizeof(QChar));
    }

    // The value of a name the table holds, or fallback.
    int value(const QString &name, int fallback) const
    {
        const Entry &e = m_entries[indexOf(name, hashOf(name))];
        return e.used ? e.value : fallback;
    }

private:
    struct Entry
    {
        quint32 hash;
        int value;
        quint16 size;
        bool used;
        char16_t chars[MaxLength];
    };
    static_assert(sizeof(Entry) == 64, "an entry fills one cache line");

    static quint64 load64(const void *bytes)
    {
        quint64 word;
        std::memcpy(&word, bytes, sizeof word);
        return word;
    }

    // Calls visit(at) for byte offsets of eight-byte words that together
    // cover size bytes (at least eight), the last ones overlapping: names of
    // up to sixteen code units take two or four words and no loop.
    template <typename Visit>
    static void forEachWord(std::size_t size, Visit visit)
    {
        visit(0);
        if (size > 16) {
            visit(8);
            for (std::size_t at = 16; at + 16 < size; at += 8)
                visit(at);
            visit(size - 16);
        }
        visit(size - 8);
    }

    // Mixes the UTF-16 bytes eight at a time; a name shorter than eight
    // bytes is mixed code unit by code unit.
    static quint32 hashOf(const QString &name)
    {
        const char *bytes = reinterpret_cast<const char *>(name.constData());
        const std::size_t size = std::size_t(name.size()) * sizeof(QChar);
        quint64 h = size;
        if (size >= 8) {
            forEachWord(size,
                        [&](std::size_t at) { h = ((h << 23) | (h >> 41)) ^ load64(bytes + at); });
        } else {
            for (std::size_t at = 0; at < size; at += sizeof(QChar))
                h = (h << 16) ^ name.constData()[at / sizeof(QChar)].unicode();
        }
        h ^= h >> 29;
        h *= 0x9E3779B97F4A7C15ull;
        return quint32(h >> 32);
    }

    static bool holdsName(const Entry &e, const QString &name)
    {
        if (e.size != name.size())
            return false;
        const std::size_t size = std::size_t(e.size) * sizeof(QChar);
        const char *x = reinterpret_cast<const char *>(e.chars);
        const char *y = reinterpret_cast<const char *>(name.constData());
        if (size < 8) { // at most three code units: no call for them
            const QChar *chars = name.constData();
            for (int i = 0; i < e.size; ++i) {
                if (e.chars[i] != chars[i].unicode())
                    return false;
            }
            return true;
        }
        quint64 differences = 0;
        forEachWord(size, [&](std::size_t at) { differences |= load64(x + at) ^ load64(y + at); });
        return differences == 0;
    }

    // The entry holding the name, or the free one where it would go.
    quint32 indexOf(const QString &name, quint32 hash) const
    {
        for (quint32 i = hash;; ++i) {
            const Entry &e = m_entries[i & (Capacity - 1)];
            if (!e.used || (e.hash == hash && holdsName(e, name)))
                return i & (Capacity - 1);
        }
    }

    Entry m_entries[Capacity];
};

#endif
