// The queries by name, by channel standard text and by enumerator, and
// whatever a user may type into them: the ends of the int range, NaN,
// infinities, denormals, empty and huge names (also run under the sanitizers).
#include "testsupport.h"

#include <cfloat>
#include <climits>
#include <cmath>

namespace {

// Maps every channel of a record onto its base frequency.
const ChFreqFunc flat = [](int, double base, int) { return base; };

const QString kHuge(1 << 20, QLatin1Char('x')); // a megabyte of name
const ChBandStore &s = G_CHSTD;

QString invalidEnum(int code)
{
    return QStringLiteral("Channel Standard Enum is invalid.( %1 )").arg(code);
}
QString invalid(const char *what, const QString &value)
{
    return QStringLiteral("%1 is invalid.( \"%2\" )").arg(str(what), value);
}

// The lenient by-name answers: an unknown name means slot 0, silently.
QString lenient(const QString &tech, const QString &band)
{
    return answersByNames({s, tech, band, 0, 0, 1023, 870.0});
}

} // namespace

class TestQueries : public QObject
{
    Q_OBJECT

    std::unique_ptr<ChBandStore> own;

private slots:
    // A private store with what the real plan lacks. GSM: "Hundred" fills all
    // 100 records (pairs of channels 1000+10i to 1005+10i), "Negative" has
    // negative channels, "Flat" maps channel 900 and then 0 to 19 onto 500 MHz
    // (21 matches for a list of 10), "Near" sits next to the tolerance, "Top"
    // ends at INT_MAX, "DownFirst" has its pair reversed, "Empty" (115) has no
    // record. WIMAX ProfR1 gains a downlink record; TD-SCDMA an empty band name
    // (409) whose pair differs in channels; CDMA names of a negative slot and
    // of a slot past a gap.
    void initTestCase()
    {
        own = makeStore();
        g_own = own.get();
        const QString gsm = str("GSM");
        const auto f900 = &ChBandStore::chstdGetGSM_900;
        for (int i = 0; i < ChBand::MaxSubBands; ++i)
            own->SetBandInfo(gsm, str("Hundred"), 1000 + 10 * i, 1005 + 10 * i, 100.0 + i,
                             101.0 + i, 100.0 + i, 1, i % 2 == 0 ? 1 : 0, f900, false);
        own->SetBandInfo(gsm, str("Negative"), -10, -5, 50.0, 51.0, 50.0, 1, 1, f900, false);
        own->SetBandInfo(gsm, str("Negative"), -3, 4, 60.0, 61.0, 60.0, 1, 0, f900, false);
        own->SetBandInfo(gsm, str("Flat"), 900, 900, 400.0, 600.0, 500.0, 1, 1, flat, false);
        own->SetBandInfo(gsm, str("Flat"), 0, 19, 400.0, 600.0, 500.0, 1, 1, flat, false);
        own->SetBandInfo(gsm, str("Near"), 1, 1, 0.5, 2.0, 0.75, 1, 1, flat, false);
        own->SetBandInfo(gsm, str("Near"), 2, 2, 0.5, 2.0, 1.5, 1, 1, flat, false);
        own->SetBandInfo(gsm, str("Top"), INT_MAX - 2, INT_MAX, 600.0, 800.0, 700.0, 1, 1, flat,
                         false);
        own->SetBandInfo(gsm, str("DownFirst"), 100, 200, 900.0, 920.0, 900.0, 1, 0, f900, false);
        own->SetBandInfo(gsm, str("DownFirst"), 300, 400, 950.0, 970.0, 950.0, 1, 1, f900, false);
        own->Technologies[1].BandIndexMap.insert(str("Empty"), own->Technologies[1].NumBand++);
        own->SetBandInfo(str("WIMAX"), str("ProfR1 (1.25 2150)"), 100, 107, 2250.625, 2259.375,
                         2250.625, 3, 0, &ChBandStore::chstdGetWIMAX_Common1, false);
        own->SetBandInfo(str("TD-SCDMA"), QString(), 1, 2, 10.0, 20.0, 10.0, 1, 1, f900, false);
        own->SetBandInfo(str("TD-SCDMA"), QString(), 5, 6, 10.0, 20.0, 10.0, 1, 0, f900, false);
        own->Technologies[0].BandIndexMap.insert(str("Neg"), -5);
        own->Technologies[0].BandIndexMap.insert(str("Gap"), 12); // slot 11 has no name
    }

    // Names and numbers agree for every band of the plan, in both directions.
    // The classifier lists name exactly the time-division bands: all of LTE-TDD
    // and TD-SCDMA, the single-record WiMAX profiles, and elsewhere only the
    // global bands (by their name alone).
    void everyBand()
    {
        LogCapture log;
        forEachBand(s, [](const ChTechnology &tech, const ChBand &band, int code) {
            const QString &t = tech.TechName, &b = band.BandName;
            QCOMPARE(QStringList({s.GetBandList(t).value(code % 100), s.GetEnumulator(code),
                                  s.GetBandName(code)}),
                     QStringList({b, t + str(" - ") + b, b}));
            QCOMPARE(nums({s.GetNumBand(t), s.GetEnumulator(t, b), s.GetTech(code), s.GetBand(code),
                           s.IsChannelStandard(code), s.CheckChannelStandardIsLTETDD(b),
                           s.CheckChannelStandardIsTDS(b), s.CheckChannelStandardIsWiMax(b)}),
                     nums({tech.NumBand, code, code / 100, code % 100, true,
                           code / 100 == 3 || band.IsGlobal, code / 100 == 4,
                           code / 100 == 6 && band.NumSubBand == 1}));
        });
        for (const char *other : {"LTE-TDD - Band 40 (2300)", "FBN 9", "band global", ""})
            QVERIFY(!s.CheckChannelStandardIsLTETDD(str(other))
                    && !s.CheckChannelStandardIsTDS(str(other))
                    && !s.CheckChannelStandardIsWiMax(str(other)));
        QCOMPARE(log.take(), QStringList());
    }

    // Hand-edited maps reach the truncating split of negative numbers, negative
    // slots, empty names and a slot that no name maps to.
    void handEditedMaps()
    {
        LogCapture log;
        // -5 / 100 truncates to technology 0 and leaves band -5; a flooring split
        // would give technology -1 and no text at all. An empty band name is a
        // key for the strict lookup but no text form.
        QCOMPARE(QStringList({own->GetEnumulator(-5), own->GetEnumulator(-105),
                              own->GetEnumulator(12), own->GetEnumulator(409)}),
                 QStringList({str("CDMA - Neg"), {}, str("CDMA - Gap"), {}}));
        QCOMPARE(nums({own->GetEnumulator(str("TD-SCDMA"), QString()),
                       own->IsChannelStandard(str("TD-SCDMA - "))}),
                 str("409 1"));
        QCOMPARE(own->GetBandList(str("CDMA")), s.GetBandList(str("CDMA"))
                                                    << QString() << str("Gap"));
        QCOMPARE(log.take(), QStringList());
        QCOMPARE(nums({own->GetEnumulator(str("CDMA"), str("Neg")), own->IsChannelStandard(-5),
                       own->IsChannelStandard(409)}),
                 str("-1 0 0"));
        QCOMPARE(log.take(), warned(invalid("Band Name", str("Neg")), 2)
                                 << str("W ") + invalidEnum(409));
    }

    void byNames_data()
    {
        // MHz low and high, channels first and last, records, record 0's MHz and flag.
        columns("limits: ", [](auto &s, auto &a, auto &t, auto &b) {
            return nums({s.GetStartFreq(t, b, a.link), s.GetStopFreq(t, b, a.link),
                         s.GetStartChannelNo(t, b, a.link), s.GetStopChannelNo(t, b, a.link),
                         s.GetNumSubBand(t, b), s.GetStartFreq(t, b), s.IsUplinkOnly(t, b)});
        });
        row("GSM 850 up", {0, "GSM", "GSM 850", 1}, "824 849 128 251 2 824 0");
        // Channel 0 is a real answer: no fallback to the other link.
        row("E-GSM up", {0, "GSM", "E-GSM 900", 1}, "880 915 0 1023 4 880 0");
        row("global down", {0, "LTE-FDD", "Band Global", 0}, "461 3590 0 68985 72 1920 0");
        // Placeholders count for the frequency edges but never for channels:
        // the other link answers instead.
        row("global up", {0, "LTE-FDD", "Band Global", 1}, "1 3490 18000 133521 72 1920 0");
        row("placeholder up", {0, "LTE-FDD", "Band 29 (900)", 1}, "1 1 9660 9769 2 1 0");
        row("placeholder down", {0, "5G NR", "Band n80 (UL 1800)", 0},
            "1 1 342000 357000 2 1710 0");
        row("n41: flag on record 1", {0, "5G NR", "Band n41 (TD 2500)", 1},
            "1 1 499200 537999 2 1 0");
        row("TDD", {0, "LTE-TDD", "Band 33 (1900)", 1}, "1900 1920 36000 36199 2 1900 1");
        row("single record, other link", {0, "WIMAX", "ProfR29 (8.75 2304)", 0},
            "0 0 0 730 1 2304.375 1");
        row("link 2 falls back to 0", {0, "LTE-FDD", "Band 3 (1800)", 2}, "0 0 1200 1949 2 1710 0");
        // Negative stop channels never win; the other link's maximum does.
        row("negative up", {1, "GSM", "Negative", 1}, "50 51 -10 4 2 50 0");
        row("negative link 2", {1, "GSM", "Negative", 2}, "0 0 -3 4 2 50 0");
        row("no records", {1, "GSM", "Empty", 1}, "0 0 0 0 0 0 0");
        row("link INT_MIN", {0, "GSM", "GSM 850", INT_MIN}, "0 0 128 251 2 824 0");

        asking("GetFreq: ", [](auto &s, auto &a, auto &t, auto &b) {
            return nums({s.GetFreq(t, b, a.link, a.channel),
                         s.GetFreqNoLimit(t, b, a.link, a.channel),
                         s.IsExistChannelNo(t, b, a.link, a.channel)});
        });
        row("last down", {0, "GSM", "GSM 850", 0, 251}, "893.8000000000001 893.8000000000001 1");
        row("above", {0, "GSM", "GSM 850", 1, 252}, "-1 849 0");
        row("INT_MAX", {0, "GSM", "GSM 850", 0, INT_MAX}, "-1 429497573 0");
        row("FDD link 2", {0, "GSM", "GSM 850", 2, 128}, "-1 -1 0");
        // The first record of the link decides for GetFreqNoLimit.
        row("E-GSM second range", {0, "GSM", "E-GSM 900", 1, 1000}, "885.2 1090 1");
        row("down channel, up link", {0, "LTE-FDD", "Band 1 (2100)", 1, 300}, "-1 150 0");
        // "Band Global" is time-division by its name: every record is eligible
        // and the first one holding the channel wins, even before a placeholder
        // of the asked link.
        row("global, link 2", {0, "LTE-FDD", "Band Global", 2, 300}, "2140 -1 0");
        row("global, placeholder later", {0, "LTE-FDD", "Band Global", 1, 1},
            "2110.1 120.09999999999991 1");
        row("NR global, up link", {0, "5G NR", "Band Global", 1, 422000}, "2110 2110 0");
        row("placeholder", {0, "LTE-FDD", "Band 29 (900)", 1, 1}, "-2764.9 -2764.9 1");
        row("past placeholder", {0, "LTE-FDD", "Band 29 (900)", 1, 9660}, "-1 -1799 0");
        // Uplink-only records serve every link, except for IsExistChannelNo.
        row("uplink-only record", {0, "5G NR", "Band n41 (TD 2500)", -1, 499400}, "2497 2497 0");
        row("link before flag", {0, "5G NR", "Band n41 (TD 2500)", 1, 499400}, "2497 2497.995 0");
        row("TDD link 2", {0, "LTE-TDD", "Band 40 (2300)", 2, 38650}, "2300 2300 0");
        row("TDS link 2", {0, "TD-SCDMA", "FBN 3", 2, 0}, "1972 1972 0");
        row("paired WiMAX link 2", {0, "WIMAX", "ProfR6 (3.5 2598)", 2, 0}, "-1 -1 0");
        row("single WiMAX down", {0, "WIMAX", "ProfR1 (1.25 2150)", 0, 3}, "2154.375 2154.375 0");
        row("no records", {1, "GSM", "Empty", -9, 0}, "-1 -1 0");
        row("INT_MIN wraps", {0, "GSM", "GSM 850", 1, INT_MIN}, "-1 429497528.2 0");
        row("link INT_MIN", {0, "GSM", "GSM 850", INT_MIN, 128}, "-1 -1 0");
        row("TDD link INT_MIN", {0, "LTE-TDD", "Band 40 (2300)", INT_MIN, 38650}, "2300 2300 0");

        // Note the argument order: channel before link.
        asking("InSample: ", [](auto &s, auto &a, auto &t, auto &b) {
            return QString::number(s.GetStopChannelNo_InSample(t, b, a.channel, a.link));
        });
        row("in no record: record 0", {0, "GSM", "GSM 850", 1, 300}, "251");
        row("first record holding it", {0, "WCDMA", "Band Global", 2, 9662}, "9888");
        row("second pair, down", {0, "CDMA", "Band 0 (800)", 0, 1000}, "1023");
        row("channel and link swapped", {0, "CDMA", "Band 0 (800)", 1000, 1}, "799");
        row("other link's record", {0, "LTE-FDD", "Band 3 (1800)", 1, 1300}, "1949");
        // A downlink record is replaced by the uplink record after it, except
        // the last one, whose neighbour was never written.
        row("shadowed", {0, "LTE-FDD", "Band Global", 1, 300}, "18599");
        row("not shadowed", {0, "LTE-FDD", "Band Global", 0, 300}, "599");
        row("last record", {0, "LTE-FDD", "Band Global", 1, 68950}, "68985");
        // The unwritten neighbour (link -9, channels 0 to 0) is a candidate too.
        row("unwritten neighbour", {0, "GSM", "GSM 850", -9, 0}, "0");
        row("100: last record", {1, "GSM", "Hundred", 1, 1992}, "1995");
        row("100: beyond the array", {1, "GSM", "Hundred", -9, 0}, "0");
        row("no records", {1, "GSM", "Empty", -9, 0}, "0");
        row("channel INT_MAX, link INT_MIN", {0, "GSM", "GSM 850", INT_MIN, INT_MAX}, "251");

        // A miss writes its one line to standard output, never to the Qt log,
        // the value in six digits.
        // The channel argument is the preferred one.
        asking("GetChNumFromFreq: ", [](auto &s, auto &a, auto &t, auto &b) {
            return QString::number(s.GetChNumFromFreq(t, b, a.link, a.mhz, a.channel));
        });
        // Answers on the band plan are held to the literal walk (tst_fastpaths);
        // these are records the plan lacks and arguments out of range.
        row("earliest record first", {1, "GSM", "Flat", 1, -1, 500.0}, "900");
        row("tenth kept", {1, "GSM", "Flat", 1, 8, 500.0}, "8");
        row("eleventh dropped", {1, "GSM", "Flat", 1, 9, 500.0}, "900");
        row("within epsilon", {1, "GSM", "Near", 1, -1, std::nextafter(0.75, 1.0)}, "1");
        row("at epsilon", {1, "GSM", "Near", 1, -1, std::nextafter(1.5, 2.0)}, "-1",
            printed("1.5"));
        row("up to INT_MAX", {1, "GSM", "Top", 1, -1, 700.0}, "2147483645");
        row("INT_MAX preferred", {1, "GSM", "Top", 1, INT_MAX, 700.0}, "2147483647");
        row("no records", {1, "GSM", "Empty", 1, -1, 500.0}, "-1", printed("500"));
        row("link and preference INT_MIN", {0, "GSM", "GSM 850", INT_MIN, INT_MIN, 824.2}, "-1",
            printed("824.2"));
        row("preference INT_MAX", {0, "GSM", "GSM 850", 1, INT_MAX, 824.2}, "128");
        row("largest double", {0, "GSM", "GSM 850", 1, 0, DBL_MAX}, "-1", printed("1.79769e+308"));

        // Uplink start channel minus downlink start channel; the link is not read.
        asking("offset: ", [](auto &s, auto &a, auto &t, auto &b) {
            return QString::number(s.GetOffsetChUpDown(t, b, a.channel, a.link));
        });
        row("up channel, link not consulted", {0, "LTE-FDD", "Band 1 (2100)", 7, 18300}, "18000");
        row("channel and link swapped", {0, "LTE-FDD", "Band 3 (1800)", 1300, 0}, "0");
        row("in no record", {0, "GSM", "GSM 850", 1, 5}, "0");
        // Time-division technologies have no offset, whatever their pairs say.
        row("LTE-TDD", {0, "LTE-TDD", "Band Global", 1, 36000}, "0");
        row("TD-SCDMA", {1, "TD-SCDMA", "", 1, 1}, "0");
        // Pairs are read as they stand, placeholders and all.
        row("placeholder down", {0, "5G NR", "Band n80 (UL 1800)", 1, 342000}, "341999");
        row("placeholder up", {0, "LTE-FDD", "Band 29 (900)", 0, 9700}, "-9659");
        row("global, two downlinks", {0, "LTE-FDD", "Band Global", 0, 9700}, "-450");
        row("global, last pair", {0, "LTE-FDD", "Band Global", 0, 68950}, "64536");
        row("down record first", {1, "GSM", "DownFirst", 0, 150}, "0");
        row("up record last", {1, "GSM", "DownFirst", 1, 350}, "0");
        row("listed WiMAX", {1, "WIMAX", "ProfR1 (1.25 2150)", 1, 0}, "0");
        // The exemption goes by the name given, not by the band it selects.
        row("unlisted name, same band", {1, "WIMAX", "ProfR1", 1, 0}, "-100");
        row("unlisted name, down", {1, "WIMAX", "", 0, 105}, "-100");
    }
    void byNames() { checkRow(); }

    void byTextAndEnum_data()
    {
        // The strict lookup (when the text has two parts) and the check of the
        // text form fail alike, with one warning naming the first part that is wrong.
        columns("names: ", [](auto &s, auto &, auto &t, auto &) {
            const QStringList parts = t.split(str(" - "));
            return nums({parts.size() > 1 ? s.GetEnumulator(parts[0], parts[1]) : -1,
                         s.IsChannelStandard(t)});
        });
        const auto names = [](const char *text, int code, const char *what = "",
                              const QString &value = {}) {
            const int calls = *what ? str(text).contains(str(" - ")) ? 2 : 1 : 0;
            row(*text ? text : "empty", {false, text}, qPrintable(nums({code, code >= 0})),
                warned(invalid(what, value), calls));
        };
        names("CDMA - Band 0 (800)", 0);               // code 0 is valid
        names("GSM - GSM 850 - x", 102);               // parts after the second are ignored
        names("LTE - x", -1, "Tech Name", str("LTE")); // the band is not looked at
        names("lte-fdd - Band 1 (2100)", -1, "Tech Name", str("lte-fdd"));
        names("LTE-FDD - Band 1 (2100-General)", -1, "Band Name", str("Band 1 (2100-General)"));
        names("GSM - gsm 850", -1, "Band Name", str("gsm 850"));
        names("GSM - GSM 850 ", -1, "Band Name", str("GSM 850 "));
        names("GSM -  - GSM 850", -1, "Band Name", str(""));
        names("say \"GSM\\ - GSM 850", -1, "Tech Name", str("say \\\"GSM\\\\"));
        names("GSM - Bänd\t€", -1, "Band Name", str("Bänd\\t€"));
        names("LTE-TDD-Band 40 (2300)", -1, "Channel Standard", str("LTE-TDD-Band 40 (2300)"));
        names("GSM 850", -1, "Channel Standard", str("GSM 850"));
        names("", -1, "Channel Standard", str(""));

        // On a channel standard text, with the link as a number or, given in
        // place of the band, as a direction word; the channel is also the
        // preferred one.
        asking("text: ", [](auto &s, auto &a, auto &t, auto &b) {
            const int c = a.channel;
            return a.band ? nums({s.GetFreq(t, b, c), s.GetChNumFromFreq(t, b, a.mhz, c),
                                  s.GetOffsetChUpDown(t, b, c)})
                          : nums({s.GetFreq(t, a.link, c), s.GetChNumFromFreq(t, a.link, a.mhz, c),
                                  s.GetOffsetChUpDown(t, a.link, c)});
        });
        const QStringList invalid3 = warned(invalid("Channel Standard", str("GSM 850")), 3);
        row("link 0", {0, "GSM - GSM 850", nullptr, 0, 128, 869.2}, "869.2 128 0");
        row("Forward", {0, "GSM - GSM 850", "Forward", 9, 128, 869.2}, "869.2 128 0");
        row("forward", {0, "GSM - GSM 850", "forward", 0, 128, 869.2}, "824.2 -1 0",
            printed("869.2"));
        row("empty direction", {0, "GSM - GSM 850", "", 0, 128, 824.2}, "824.2 128 0");
        row("empty band part", {0, "GSM -  - GSM 850", nullptr, 1, 259, 450.6}, "450.6 259 0");
        row("link form, band 3", {0, "LTE-FDD - Band 3 (1800)", nullptr, 0, 1300, 1815.0},
            "1815 1300 18000");
        row("Reverse, band 3", {0, "LTE-FDD - Band 3 (1800)", "Reverse", 0, 19300, 1720.0},
            "1720 19300 18000");
        row("no separator", {0, "GSM 850", nullptr, 1, 128, 824.2}, "-1 -1 -1", invalid3);
        // The split fails before the frequency is looked at.
        row("no separator, NaN", {0, "GSM 850", "Forward", 1, 128, kNaN}, "-1 -1 -1", invalid3);

        // Every member by enumerator: an invalid code (just past each
        // technology's bands, past the technologies, negative, the int ends) gets
        // the failure values, true from IsUplinkOnly but false from
        // IsExistChannelNo, and a warning from each member but the reverse
        // conversion; a valid one whose band has no record gets the name forms'
        // empty answers. Valid codes of the plan are held to the name forms by
        // tst_fastpaths.
        asking("enum: ", [](auto &s, auto &a, auto &, auto &) {
            Answers answers;
            answers << s.GetTech(a.code) << s.GetBand(a.code) << s.IsChannelStandard(a.code);
            askByCode({s, {}, {}, a.code, a.link, a.channel, a.mhz}, answers);
            return s.GetEnumulator(a.code) + QLatin1Char('|') + s.GetBandName(a.code)
                   + QLatin1Char('|') + nums(answers);
        });
        row("115, no records", {1, nullptr, nullptr, 1, 0, 0.0, 0, 115},
            "GSM - Empty|Empty|1 15 1 0 0 0 0 -1 300000 0 0 0 0 0 -1", printed("0"));
        row("409, no text form", {1, nullptr, nullptr, 1, 1, 10.2, 0, 409},
            "|None|-1 -1 0 -1 -1 -1 -1 -1 -1 1 -1 -1 -1 0 -1", warned(invalidEnum(409), 16));
        for (const int code :
             {11, 109, 238, 317, 619, 736, 800, 900, -1, -100, -150, INT_MIN, INT_MAX})
            row(qPrintable(QString::number(code)), {0, nullptr, nullptr, 1, 128, 824.2, 0, code},
                "|None|-1 -1 0 -1 -1 -1 -1 -1 -1 1 -1 -1 -1 0 -1", warned(invalidEnum(code), 16));

        asking("bad input: ", nullptr);
        const QString fdd = str("LTE-FDD"), b1 = str("Band 1 (2100)");
        const QString badBand = QLatin1String("W ") + invalid("Band Name", kHuge);
        row("huge names, strict",
            [=] {
                return nums({s.GetEnumulator(kHuge, b1), s.GetEnumulator(fdd, kHuge),
                             s.IsChannelStandard(fdd + str(" - ") + kHuge),
                             s.GetDefaultIntBW(kHuge), s.CheckChannelStandardIsLTETDD(kHuge),
                             s.CheckChannelStandardIsTDS(kHuge),
                             s.CheckChannelStandardIsWiMax(kHuge)});
            },
            str("-1 -1 0 1000000 0 0 0"),
            {QLatin1String("W ") + invalid("Tech Name", kHuge), badBand, badBand});
        // All but the bandwidth, which an unknown technology has its own of.
        const QString cdma =
            lenient(str("CDMA"), str("Band 0 (800)")).replace(str(" 1230000 "), str(" 1000000 "));
        row(
            "huge, empty and differently cased names select slot 0",
            [] {
                return lenient(kHuge, kHuge) + lenient(QString(), QString())
                       + lenient(str("cdma"), str("band 0 (800)"));
            },
            cdma + cdma + cdma);
        // A record over the whole int range and the whole real line, and one
        // with no channels, no frequencies and no formula.
        row("registered extremes",
            [] {
                const auto own = makeStore();
                const QString gsm = str("GSM"), wide = str("GSM - Wide"), none = str("Void");
                own->SetBandInfo(gsm, str("Wide"), INT_MIN, INT_MAX, -kInf, kInf, 0.0, INT_MIN, 1,
                                 &ChBandStore::chstdGetGSM_900, false);
                own->SetBandInfo(gsm, none, 5, 1, kNaN, kNaN, kNaN, INT_MAX, 0, nullptr, true);
                const QList<ChInfo> hits = own->GetChInfoFromFreq(1e9);
                return nums(
                    {own->GetFreq(wide, 1, INT_MIN), own->GetChNumFromFreq(wide, 1, -0.0, 5),
                     own->GetAvailableChannels(wide, str("Reverse"), -1.0, 1.0).size(),
                     own->GetStartChannelNo(gsm, str("Wide"), 1),
                     own->GetStopChannelNo(gsm, str("Wide"), 1), own->GetOffsetChUpDown(wide, 1, 0),
                     hits.size(), hits.value(0).channelNo, own->GetFreq(gsm, none, 0, 3),
                     own->GetFreqNoLimit(gsm, none, 0, 3), own->GetChInfoFromFreq(kNaN).size(),
                     own->GetStopChannelNo_InSample(gsm, none, 3, 0)});
            },
            nums({INT_MIN * 0.2, 0, 11, INT_MIN, INT_MAX, 0, 1, INT_MAX, -1, kNaN, 0, 1}),
            {str("D [ChStd]  Version :  " SAISKUKO_VERSION_STR), str("D AvailableChannels :  11")});
    }
    void byTextAndEnum() { checkRow(); }
};

QTEST_APPLESS_MAIN(TestQueries)
#include "tst_queries.moc"
