// Screen texts: frequency search, channel windows, reference strings, mode tables.
#include "testsupport.h"

#include <cfloat>
#include <climits>

namespace {

// Hits joined by "; " as tech|band|link|channel|offset, so that a failure
// shows the whole ordering at a glance.
QString render(const QList<ChInfo> &hits)
{
    QStringList out;
    for (const ChInfo &h : hits)
        out << QString::asprintf("%s|%s|%d|%d|%g", qPrintable(h.techName), qPrintable(h.bandName),
                                 h.linkDirection, h.channelNo, h.freqOffset)
                   + (h.reserved ? QStringLiteral("|reserved %1").arg(h.reserved) : QString());
    return out.join(QLatin1String("; "));
}

// The rows of a technology's bands as the tables show them.
void addBands(stCHList &t, const QString &tech, int link, bool withFreqs)
{
    for (const QString &band : G_CHSTD.GetBandList(tech)) {
        t.techList << tech;
        t.bandList << band;
        t.chRangeList << G_CHSTD.GetChNumRefString_List(tech, band, link);
        if (withFreqs)
            t.freqRangeList << G_CHSTD.GetFreqRefString_List(tech, band, link);
    }
}

} // namespace

class TestScreens : public QObject
{
    Q_OBJECT

    std::unique_ptr<ChBandStore> own;

private slots:
    // A private store with records that no real band has. Above 40 GHz, where
    // nothing of the plan interferes: GSM "Test band" with a record whose first
    // channel exceeds its last, a CDMA band of the same name registered later
    // but in an earlier slot, an extra record in LTE-FDD's global band, and
    // "Edge band" ending at INT_MAX (channel INT_MAX - 1 at exactly 60000 MHz).
    // For the texts: "Three" records, "Many" (24, uplink and downlink
    // alternating) and "Empty", a band slot without records. "Crowd" holds 24
    // records that tie at 70000 MHz.
    void initTestCase()
    {
        own = makeStore();
        g_own = own.get();
        const QString gsm = str("GSM"), band = str("Test band");
        const auto step125 = &ChBandStore::chstdGetWIMAX_Common1; // base + ch x 1.25, exact
        const auto f = &ChBandStore::chstdGetGSM_900;             // base + ch x 0.2
        own->SetBandInfo(gsm, band, 10, 5, 50000.0, 50100.0, 50000.0, 0, 0, step125, false);
        own->SetBandInfo(gsm, band, 0, 8, 50000.0, 50010.0, 50000.0, 0, 1, step125, false);
        own->SetBandInfo(gsm, band, 0, 8, 50000.0, 50010.0, 50000.0, 0, 0, step125, false);
        own->SetBandInfo(gsm, band, 0, 3, 50000.0, 50100.0, 50004.5, 0, 1, step125, false);
        own->SetBandInfo(str("CDMA"), band, 0, 8, 50000.0, 50010.0, 50000.0, 0, 0, step125, false);
        own->SetBandInfo(str("LTE-FDD"), str("Band Global"), 0, 8, 50000.0, 50010.0, 50000.0, 0, 0,
                         step125, false);
        own->SetBandInfo(gsm, str("Edge band"), INT_MAX - 2, INT_MAX, 59990.0, 60010.0,
                         60000.0 - 2147483646.0 * 1.25, 0, 1, step125, false);
        own->SetBandInfo(gsm, str("Three"), 1, 2, 100.0, 101.0, 100.0, 1, 1, f, false);
        own->SetBandInfo(gsm, str("Three"), 3, 4, 200.0, 201.0, 200.0, 1, 0, f, false);
        own->SetBandInfo(gsm, str("Three"), 5, 6, 100.0, 101.0, 100.0, 1, 1, f, false);
        for (int i = 0; i < 24; ++i)
            own->SetBandInfo(gsm, str("Many"), 10 * i, 10 * i + 5, 100.0, 200.0,
                             i % 2 ? 200.0 : 100.0, 1, i % 2 ? 0 : 1, f, false);
        own->Technologies[1].BandIndexMap.insert(str("Empty"), own->Technologies[1].NumBand++);
        // Channel i at exactly 70000 MHz: ties beyond a short sort's reach.
        for (int i = 0; i < 24; ++i)
            own->SetBandInfo(gsm, str("Crowd"), i, i, 69990.0, 70010.0, 70000.0 - 1.25 * i, 0, 1,
                             step125, false);
    }

    void screens_data()
    {
        columns("search: ", [](auto &s, auto &a, auto &, auto &) {
            return render(s.GetChInfoFromFreq(a.mhz));
        });
        // Exact hits across technologies keep technology order; the 0.1 MHz
        // misses of GSM and WCDMA tie as well and follow.
        row("1842.5, ties across technologies", {0, nullptr, nullptr, 0, 0, 1842.5},
            "CDMA|Band 4 (KR PCS)|0|50|0; CDMA|Band 8 (1800)|0|750|0; "
            "LTE-FDD|Band 3 (1800)|0|1575|0; 5G NR|Band n3 (1800)|0|368500|0; "
            "GSM|DCS 1800|0|698|-0.1; WCDMA|Band 3 (1800-General)|0|1337|-0.1");
        // Both LTE-TDD directions hold 3500: uplink record first. The 1.25 MHz
        // WiMAX raster puts 3500 halfway between channels 79 and 80: 79 wins.
        row("3500, TDD directions and halfway", {0, nullptr, nullptr, 0, 0, 3500.0},
            "LTE-TDD|Band 42 (3400)|1|42590|0; LTE-TDD|Band 42 (3400)|0|42590|0; "
            "5G NR|Band n77 (TD 3700)|0|633333|-0.005; 5G NR|Band n78 (TD 3500)|0|633333|-0.005; "
            "WIMAX|ProfR5 (1.25 3400)|1|79|-0.625");
        for (const double nothing :
             {kNaN, kInf, -kInf, 0.0, -1842.5, 40000.001, DBL_TRUE_MIN, -DBL_MAX, DBL_MAX})
            row(qPrintable(QString::number(nothing)), {0, nullptr, nullptr, 0, 0, nothing}, "");

        // Every call but a malformed one logs its count as one debug line.
        asking("window: ", [](auto &s, auto &a, auto &t, auto &b) {
            QStringList channels;
            for (const int channel : s.GetAvailableChannels(t, b, a.mhz, a.high))
                channels << QString::number(channel);
            return channels.join(QLatin1Char(' '));
        });
        const auto window = [](const char *name, Args a, const char *expected) {
            row(name, a, expected,
                counted(*expected ? str(expected).count(QLatin1Char(' ')) + 1 : 0));
        };
        const char *gsm850 = "GSM - GSM 850", *r1 = "WIMAX - ProfR1 (1.25 2150)";
        window("lower-case forward is uplink", {0, gsm850, "forward", 0, 0, 824.2, 824.6},
               "128 129 130");
        window("unknown names select CDMA Band 0", {0, "Foo - Bar", "Forward", 0, 0, 870.0, 870.07},
               "1 2");
        window("parts after the second ignored",
               {0, "LTE-FDD - Band 1 (2100) - x", "Forward", 0, 0, 2110.0, 2110.25}, "0 1 2");
        window("no record of the direction", {0, r1, "Forward", 0, 0, 0.0, 1e9}, "");
        // The first downlink record is the one whose first channel exceeds its
        // last; the later, well-formed downlink record is not offered.
        window("malformed first record", {1, "GSM - Test band", "Forward", 0, 0, 0.0, 1e9}, "");
        window("up to INT_MAX", {1, "GSM - Edge band", "Reverse", 0, 0, 59999.0, 60002.0},
               "2147483646 2147483647");
        window("a second separator: band slot 0",
               {0, "LTE-FDD -  - ", "Forward", 0, 0, 2161.85, 2162.85},
               "519 520 521 522 523 524 525 526 527 528");
        row("no separator", {0, "GSM 850", "Forward", 0, 0, 0.0, 1e9}, "",
            {str("W Channel Standard is invalid.( \"GSM 850\" )")});

        // The channels on one line, the channels and the MHz one range a line.
        asking("refs: ", [](auto &s, auto &a, auto &t, auto &b) {
            return QStringList{s.GetChNumRefString(t, b, a.link),
                               s.GetChNumRefString_List(t, b, a.link),
                               s.GetFreqRefString_List(t, b, a.link)}
                .join(QLatin1String(" | "));
        });
        const char *b0 = "Band 0 (800)";
        // Non-paired: records 0, 2, ... whatever the selector; frequencies follow it.
        row("CDMA uplink", {0, "CDMA", b0, 1},
            "(1 - 799 /991 - 1023 ) | (1 - 799)\n(991 - 1023) | (825.03 - 848.97)\n(824.04 - "
            "825.00)");
        row("CDMA selector 2", {0, "CDMA", b0, 2},
            "(1 - 799 /991 - 1023 ) | (1 - 799)\n(991 - 1023) | (-1.00 - -1.00)\n(-1.00 - "
            "-1.00)");
        row("GSM 935.00", {0, "GSM", "E-GSM 900", 0},
            "(0 - 124 /975 - 1023 ) | (0 - 124)\n(975 - 1023) | (935.00 - 959.80)\n(925.20 - "
            "934.80)");
        // Time-division: every record is eligible, so any selector converts.
        row("LTE-TDD selector 7", {0, "LTE-TDD", "Band 42 (3400)", 7},
            "(41590 - 43589 ) | (41590 - 43589) | (3400.00 - 3599.90)");
        // One record gives one range; an exact x.xx5 rounds away from zero.
        row("WIMAX one record", {0, "WIMAX", "ProfR1 (1.25 2150)", 0},
            "(0 - 7 ) | (0 - 7) | (2150.63 - 2159.38)");
        // Paired: non-zero selects record 0, zero selects record 1.
        row("LTE-FDD downlink", {0, "LTE-FDD", "Band 1 (2100)", 0},
            "(0 - 599) | (0 - 599) | (2110.00 - 2169.90)");
        row("LTE-FDD selector -3", {0, "LTE-FDD", "Band 1 (2100)", -3},
            "(18000 - 18599) | (18000 - 18599) | (-1.00 - -1.00)");
        row("5G NR 3799.995", {0, "5G NR", "Band n78 (TD 3500)", 0},
            "(620000 - 653333) | (620000 - 653333) | (3300.00 - 3799.99)");
        // The given band name decides: a blank for "Band Global" under any name.
        for (const char *tech : {"LTE-FDD", "WCDMA", "5G NR", "CDMA", "Nonsense"})
            row(tech, {0, tech, "Band Global", 1}, "  |   |  ");
        // Not the exact name: slot 0 of LTE-FDD, which is the global band itself.
        row("band global", {0, "LTE-FDD", "band global", 1},
            "(18000 - 18599) | (18000 - 18599) | (1920.00 - 1979.90)");
        row("unknown technology", {0, "LTE", "Band 1 (NA PCS)", 1},
            "(0 - 1199 ) | (0 - 1199) | (1850.00 - 1909.95)");
        row("no records", {1, "GSM", "Empty", 1}, ") |  | ");
        row("three records, one range", {1, "GSM", "Three", 1},
            "(1 - 2 ) | (1 - 2) | (100.20 - 100.40)");
        // Every uplink record of "Many" in order, however many.
        QStringList one, list, mhz;
        for (int i = 0; i < 24; i += 2) {
            one << QStringLiteral("%1 - %2 ").arg(10 * i).arg(10 * i + 5);
            list << QStringLiteral("(%1 - %2)").arg(10 * i).arg(10 * i + 5);
            mhz << QStringLiteral("(%1.00 - %2.00)").arg(100 + 2 * i).arg(101 + 2 * i);
        }
        row("twelve ranges, no limit", {1, "GSM", "Many", 1},
            qPrintable(QLatin1Char('(') + one.join(QLatin1Char('/')) + QLatin1String(") | ")
                       + list.join(QLatin1Char('\n')) + QLatin1String(" | ")
                       + mhz.join(QLatin1Char('\n'))));
    }
    void screens() { checkRow(); }

    // The private records the plan lacks answer as the walk: a record whose
    // first channel exceeds its last matches but chooses no channel (so it
    // comes last though scanned first), one band name in two technologies,
    // a global band (never reported), channels up to INT_MAX, 24 exact ties.
    void searchPrivateRecords()
    {
        for (const double f : {50005.0, 50000.0, 50100.0, 60000.0, 70000.0}) {
            const QList<ChInfo> hits = own->GetChInfoFromFreq(f);
            QVERIFY(hits.size() >= 2 || f == 60000.0);
            QVERIFY2(literal::sameHits(hits, literal::chInfoFromFreq(*own, f)),
                     qPrintable(render(hits)));
        }
    }

    // Each mode's technologies in order, every band with its range text of
    // the chosen link and no frequency text; the second argument is never read.
    void bandListByMode()
    {
        const char *all = "CDMA GSM LTE-FDD LTE-TDD TD-SCDMA WCDMA WIMAX",
                   *fdd = "LTE-FDD LTE-TDD WCDMA";
        const QList<const char *> groups = {
            "",         all,    "",      "",     all,       "",        "GSM", "",  "WCDMA",
            "TD-SCDMA", "CDMA", "WIMAX", "CDMA", "LTE-FDD", "LTE-TDD", "",    all, all,
            "",         "",     fdd,     "",     fdd,       all,       ""};
        QList<int> modes = {100, 701, INT_MIN, INT_MAX};
        for (int mode = -1; mode <= 25; ++mode)
            modes << mode;
        LogCapture log;
        for (const int mode : modes) {
            for (const int link : {1, 0, INT_MIN}) {
                stCHList expected;
                for (const QString &tech :
                     str(groups.value(mode, "")).split(QLatin1Char(' '), Qt::SkipEmptyParts))
                    addBands(expected, tech, link, false);
                for (const int unused : {0, -7, INT_MIN, INT_MAX})
                    QCOMPARE(table(ChStd::GetBandListByMode(mode, unused, link)), table(expected));
            }
        }
        QCOMPARE(log.take(), QStringList());
    }

    // The setters append every band of the technology after the rows already
    // there, first the names alone, then the technology and the ranges of the
    // chosen link: for 5G NR too, which no mode shows, and for an unknown
    // name (kept as given) CDMA's bands.
    void setBandListColumns()
    {
        QStringList techs = G_CHSTD.TechIndexMap.keys();
        techs << str("Foo") << QString(1 << 20, QLatin1Char('x'));
        const QStringList x = {QStringLiteral("x")};
        LogCapture log;
        for (const QString &tech : techs) {
            for (const int link : {1, 0, INT_MIN}) {
                stCHList list{x, x, x, x}, expected{x, x + G_CHSTD.GetBandList(tech), x, x};
                ChStd::SetBandListName(tech, list);
                QCOMPARE(table(list), table(expected));
                ChStd::SetBandListRange(tech, link, list);
                expected.bandList = x;
                addBands(expected, tech, link, true);
                QCOMPARE(table(list), table(expected));
            }
        }
        QCOMPARE(log.take(), QStringList());
    }
};

QTEST_APPLESS_MAIN(TestScreens)
#include "tst_screens.moc"
