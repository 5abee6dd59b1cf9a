// One line per sub-band record: frequencies at its first, middle and last channels,
// from the formula and the public queries, as bits and %.17g; builds agree to the
// last bit exactly when their dumps do. Usage: saiskuko_freqdump [--check FILE]

#include <saiskuko/saiskuko.h>

#include <QtCore/QFile>

#include <cstdio>
#include <cstring>

static QByteArray num(double v)
{
    unsigned long long bits;
    std::memcpy(&bits, &v, sizeof bits);
    char text[48];
    std::snprintf(text, sizeof text, "%016llx=%.17g", bits, v);
    return text;
}

static QByteArray dump(const ChBandStore &s)
{
    QByteArray out;
    for (const ChTechnology &t : s.Technologies) {
        for (int b = 0; b < t.NumBand; ++b) {
            const ChBand &band = t.Bands[b];
            for (int i = 0; i < band.NumSubBand; ++i) {
                const stSubBand &r = band.SubBands[i];
                const qint64 first = r.StartChannelNo, last = r.StopChannelNo;
                const int chs[3] = {int(first), int(first + (last - first) / 2), int(last)};
                out += t.TechName.toUtf8() + '|' + band.BandName.toUtf8() + '|'
                       + QByteArray::number(i) + '|' + QByteArray::number(r.Link);
                for (int ch : chs)
                    out += ' ' + QByteArray::number(ch) + ':'
                           + num(r.FreqFunc(ch, r.BaseFreq, r.StartChannelNo)) + ','
                           + num(s.GetFreq(t.TechName, band.BandName, r.Link, ch));
                const QList<ChInfo> hits =
                    s.GetChInfoFromFreq(r.FreqFunc(chs[1], r.BaseFreq, r.StartChannelNo));
                out += " hits=" + QByteArray::number(hits.size());
                for (const ChInfo &h : hits.mid(0, 1))
                    out += ' ' + h.techName.toUtf8() + '|' + h.bandName.toUtf8() + '|'
                           + QByteArray::number(h.channelNo) + ':' + num(h.freqOffset);
                out += '\n';
            }
        }
    }
    return out;
}

int main(int argc, char **argv)
{
    const QByteArray have = dump(G_CHSTD);
    if (argc != 3 || std::strcmp(argv[1], "--check") != 0) {
        std::fwrite(have.constData(), 1, size_t(have.size()), stdout);
        return 0;
    }
    QFile file(QString::fromLocal8Bit(argv[2]));
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "cannot read %s\n", argv[2]);
        return 2;
    }
    const QList<QByteArray> want = file.readAll().split('\n'), got = have.split('\n');
    int bad = 0;
    for (int i = 0; i < qMax(want.size(), got.size()); ++i) {
        if (want.value(i) != got.value(i) && ++bad <= 5)
            std::fprintf(stderr, "line %d\n  want: %s\n  have: %s\n", i + 1,
                         want.value(i).constData(), got.value(i).constData());
    }
    std::fprintf(stderr, "%d of %d lines differ\n", bad, int(got.size()) - 1);
    return bad ? 1 : 0;
}
