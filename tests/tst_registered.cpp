// The quick forms of the queries against their literal definitions, on the band plan and after
// callers register more records into G_CHSTD itself: by enumerator against the code's text split
// again and handed to the name forms; by names on G_CHSTD (hash index) against a private store
// (ordered maps) that received the same records.

#include "testsupport.h"

namespace {

// Every query by enumerator: answers, then every message, in call order.
QString byCode(const ChBandStore &s, int code, int link, int ch, double mhz)
{
    LogCapture log;
    const QString answers = nums(
        {s.GetNumSubBand(code), s.GetStartChannelNo(code, link), s.GetStopChannelNo(code, link),
         s.GetOffsetChUpDown(code, link, ch), s.GetChNumFromFreq(code, link, mhz, ch),
         s.GetDefaultIntBW(code), s.IsUplinkOnly(code), s.GetStartFreq(code),
         s.GetStartFreq(code, link), s.GetStopFreq(code, link), s.IsExistChannelNo(code, link, ch),
         s.GetFreq(code, link, ch)});
    return answers + QLatin1String(" | ") + log.take().join(QLatin1String(" | "));
}

// The same by names, as the interface defines the forms by enumerator.
QString byNames(const ChBandStore &s, const QString &tech, const QString &band, int link, int ch,
                double mhz)
{
    LogCapture log;
    const QString answers =
        nums({s.GetNumSubBand(tech, band), s.GetStartChannelNo(tech, band, link),
              s.GetStopChannelNo(tech, band, link), s.GetOffsetChUpDown(tech, band, ch, link),
              s.GetChNumFromFreq(tech, band, link, mhz, ch), s.GetDefaultIntBW(tech),
              s.IsUplinkOnly(tech, band), s.GetStartFreq(tech, band),
              s.GetStartFreq(tech, band, link), s.GetStopFreq(tech, band, link),
              s.IsExistChannelNo(tech, band, link, ch), s.GetFreq(tech, band, link, ch)});
    return answers + QLatin1String(" | ") + log.take().join(QLatin1String(" | "));
}

// The literal form: GetEnumulator(int) names the band in text, split again at " - ".
QString byText(const ChBandStore &s, int code, int link, int ch, double mhz)
{
    const QStringList parts = s.GetEnumulator(code).split(QLatin1String(" - "));
    if (parts.size() >= 2)
        return byNames(s, parts[0], parts[1], link, ch, mhz);
    return nums({-1, -1, -1, -1, -1, -1.0, true, -1.0, -1.0, -1.0, false, -1.0})
           + QLatin1String(" | ")
           + warned(QStringLiteral("Channel Standard Enum is invalid.( %1 )").arg(code), 12)
                 .join(QLatin1String(" | "));
}

// Every band code and a few that name none; per band, both links at the first,
// middle and last channel of each record, and the frequency of that channel.
void compareEverywhere(const ChBandStore &own)
{
    for (int code : {-1, -250, 99, 140, 800, 10000})
        QCOMPARE(byCode(G_CHSTD, code, 0, 1, 1.0), byText(G_CHSTD, code, 0, 1, 1.0));
    for (int t = 0; t < ChBandStore::MaxTechnologies; ++t) {
        const ChTechnology &tech = G_CHSTD.Technologies[t];
        for (int b = 0; b < tech.NumBand; ++b) {
            const ChBand &band = tech.Bands[b];
            for (int i = 0; i < band.NumSubBand; ++i) {
                const stSubBand &r = band.SubBands[i];
                const qint64 first = r.StartChannelNo, last = r.StopChannelNo;
                for (qint64 ch : {first, first + (last - first) / 2, last}) {
                    for (int link : {0, 1}) {
                        const double mhz = r.FreqFunc(int(ch), r.BaseFreq, r.StartChannelNo);
                        QCOMPARE(byCode(G_CHSTD, 100 * t + b, link, int(ch), mhz),
                                 byText(G_CHSTD, 100 * t + b, link, int(ch), mhz));
                        QCOMPARE(byNames(G_CHSTD, tech.TechName, band.BandName, link, int(ch), mhz),
                                 byNames(own, tech.TechName, band.BandName, link, int(ch), mhz));
                    }
                }
            }
        }
    }
    // Unknown and near-miss names select slot 0 alike.
    for (const char *tech : {"LTE-FDD", "lte-fdd", "", "Foo", "CDMA"}) {
        for (const char *band : {"Band 1 (2100)", "Band 1 (2100) ", "", "A - B", "Band Global"})
            QCOMPARE(byNames(G_CHSTD, str(tech), str(band), 0, 300, 2140.0),
                     byNames(own, str(tech), str(band), 0, 300, 2140.0));
    }
}

} // namespace

class TestRegistered : public QObject
{
    Q_OBJECT

private slots:
    void quickFormsAnswerAsTheLiteralOnes()
    {
        const auto own = makeStore();
        compareEverywhere(*own);
    }

    // A new band, a band name holding " - ", an empty band name, and a record
    // under an unknown technology name (which renames slot 0), into both stores.
    void afterCallersRegisterRecords()
    {
        const auto own = makeStore();
        for (ChBandStore *s : {&G_CHSTD, own.get()}) {
            LogCapture quiet;
            s->SetBandInfo(str("LTE-FDD"), str("Band 99 (X)"), 100, 200, 700.0, 710.0, 700.0, 1, 0,
                           &ChBandStore::chstdGetLTEBand1Dn, false);
            s->SetBandInfo(str("GSM"), str("A - B"), 1, 50, 400.0, 410.0, 400.0, 1, 1,
                           &ChBandStore::chstdGetGSM_900, false);
            s->SetBandInfo(str("WCDMA"), QString(), 10, 20, 1.0, 1.0, 1.0, 1, 0,
                           &ChBandStore::chstdGetWCDMA_Common, true);
            s->SetBandInfo(str("Foo"), str("Band 0 (800)"), 2000, 2010, 800.0, 810.0, 800.0, 1, 0,
                           &ChBandStore::chstdGetCDMA_Band0_1, false);
        }
        QCOMPARE(G_CHSTD.Technologies[0].TechName, str("Foo"));
        compareEverywhere(*own);
    }
};

QTEST_GUILESS_MAIN(TestRegistered)
#include "tst_registered.moc"
