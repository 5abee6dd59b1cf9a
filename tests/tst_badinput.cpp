// Whatever a user typed reaches these members: the ends of the int range, NaN,
// infinities, denormals, empty and huge texts get the usual answers, and no
// undefined behaviour (the suite also runs under the sanitizers).
#include "testsupport.h"

#include <cfloat>
#include <climits>
#include <cmath>
#include <functional>

using Call = std::function<QString()>;
Q_DECLARE_METATYPE(Call)

namespace {

const double kNaN = std::numeric_limits<double>::quiet_NaN(), kInf = HUGE_VAL, kTiny = DBL_TRUE_MIN;
const QString kHuge(1 << 20, QLatin1Char('x')); // a megabyte of name
const ChBandStore &s = G_CHSTD;

QString table(const stCHList &t)
{
    return (t.techList + t.bandList + t.chRangeList + t.freqRangeList).join(str("|"));
}
QString warn(const char *text, const QString &value)
{
    return str("W %1 \"%2\" )").arg(str(text), value);
}
QString missed(const char *value)
{
    return str("GetChNumFromFreq Not supported value : %1\n").arg(str(value));
}

// The lenient by-name answers: an unknown name means slot 0, silently.
QString lenient(const QString &tech, const QString &band)
{
    const QString standard = tech + str(" - ") + band;
    return nums({s.GetStartFreq(tech, band), s.GetStartFreq(tech, band, 1),
                 s.GetStopFreq(tech, band, 0), s.GetStartChannelNo(tech, band, 0),
                 s.GetStopChannelNo(tech, band, 1), s.GetNumSubBand(tech, band),
                 s.IsUplinkOnly(tech, band), s.GetFreq(tech, band, 1, 128),
                 s.GetFreq(standard, str("Forward"), 991), s.GetFreqNoLimit(tech, band, 0, -5),
                 s.IsExistChannelNo(tech, band, 1, 799),
                 s.GetStopChannelNo_InSample(tech, band, 1000, 0),
                 s.GetOffsetChUpDown(standard, 1, 128), s.GetChNumFromFreq(standard, 0, 870.0, 2),
                 s.GetNumBand(tech)})
           + s.GetBandList(tech).join(str("/")) + s.GetChNumRefString(tech, band, 1)
           + s.GetChNumRefString_List(tech, band, 0) + s.GetFreqRefString_List(tech, band, 1);
}

} // namespace

class TestBadInput : public QObject
{
    Q_OBJECT

private slots:
    void answers_data();
    void answers();
};

void TestBadInput::answers_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QStringList>("log"); // as LogCapture::take() gives it
    auto row = [](const char *name, Call call, const QString &expected,
                  const QStringList &log = {}) { QTest::newRow(name) << call << expected << log; };
    const QString gsm = str("GSM"), b850 = str("GSM 850"), fdd = str("LTE-FDD"),
                  b1 = str("Band 1 (2100)");
    const QString tdd = str("LTE-TDD"), b40 = str("Band 40 (2300)"), s850 = str("GSM - GSM 850");
    const QString sb1 = str("LTE-FDD - Band 1 (2100)");

    row(
        "GSM 850 at the int ends",
        [=] {
            return nums(
                {s.GetStartFreq(gsm, b850, INT_MIN), s.GetStopFreq(gsm, b850, INT_MAX),
                 s.GetStartChannelNo(gsm, b850, INT_MIN), s.GetStopChannelNo(gsm, b850, INT_MAX),
                 s.GetFreq(gsm, b850, 1, INT_MAX), s.IsExistChannelNo(gsm, b850, INT_MIN, 128),
                 s.IsExistChannelNo(gsm, b850, 1, INT_MIN), s.GetFreqNoLimit(gsm, b850, INT_MAX, 0),
                 s.GetFreqNoLimit(gsm, b850, 1, INT_MIN),
                 s.GetStopChannelNo_InSample(gsm, b850, INT_MIN, INT_MAX),
                 s.GetStopChannelNo_InSample(gsm, b850, INT_MAX, INT_MIN)});
        },
        nums({0, 0, 128, 251, -1, 0, 0, -1, 824.2 + 2147483520.0 * 0.2, 251,
              251})); // channel difference wraps
    row(
        "time division converts any link, offsets ignore it",
        [=] {
            return nums({s.GetFreq(tdd, b40, INT_MIN, 38650), s.GetFreq(tdd, b40, INT_MAX, 39649),
                         s.GetOffsetChUpDown(fdd, b1, INT_MAX, INT_MIN),
                         s.GetOffsetChUpDown(sb1, INT_MIN, 18000),
                         s.GetOffsetChUpDown(sb1, kHuge, 599)});
        },
        nums({2300.0, 2300.0 + 999 * 0.1, 0, 18000, 18000}));
    row("reverse, extreme link and preference",
        [=] {
            return nums({s.GetChNumFromFreq(gsm, b850, INT_MIN, 824.2, INT_MIN),
                         s.GetChNumFromFreq(s850, INT_MAX, 869.2, INT_MAX),
                         s.GetChNumFromFreq(gsm, b850, 1, 824.2, INT_MAX)});
        },
        str("-1 -1 128"), {str("out: ") + missed("824.2") + missed("869.2")});
    row("denormals and the largest double",
        [=] {
            return nums({s.GetChNumFromFreq(gsm, b850, 1, kTiny, 0),
                         s.GetChNumFromFreq(s850, kHuge, -kTiny, 0),
                         s.GetChNumFromFreq(s850, 1, DBL_MAX, 0), s.GetChInfoFromFreq(kTiny).size(),
                         s.GetChInfoFromFreq(-DBL_MAX).size(),
                         s.GetChInfoFromFreq(DBL_MAX).size()});
        },
        str("-1 -1 -1 0 0 0"),
        {str("out: ") + missed("4.94066e-324") + missed("-4.94066e-324") + missed("1.79769e+308")});
    row(
        "link selectors at the int ends",
        [=] {
            return QStringList{s.GetChNumRefString(fdd, b1, INT_MIN),
                               s.GetChNumRefString_List(gsm, b850, INT_MAX),
                               s.GetFreqRefString_List(fdd, b1, INT_MIN),
                               s.GetFreqRefString_List(tdd, b40, INT_MAX)}
                .join(str(";"));
        },
        str("(18000 - 18599);(128 - 251);(-1.00 - -1.00);(2300.00 - 2399.90)"));
    row("a second separator leaves the band empty: band slot 0",
        [] {
            return nums(
                {s.GetAvailableChannels(str("LTE-FDD -  - "), str("Forward"), 2161.85, 2162.85)
                     .value(0)});
        },
        str("519"), {str("D AvailableChannels :  10")});
    row(
        "GSM mode table ignores extreme link selectors",
        [] { return table(ChStd::GetBandListByMode(6, INT_MIN, INT_MIN)); },
        table(ChStd::GetBandListByMode(6, 0, 0)));
    row("huge names, strict",
        [=] {
            return nums({s.GetEnumulator(kHuge, b1), s.GetEnumulator(fdd, kHuge),
                         s.IsChannelStandard(fdd + str(" - ") + kHuge), s.GetDefaultIntBW(kHuge),
                         s.CheckChannelStandardIsLTETDD(kHuge), s.CheckChannelStandardIsTDS(kHuge),
                         s.CheckChannelStandardIsWiMax(kHuge)});
        },
        str("-1 -1 0 1000000 0 0 0"),
        {warn("Tech Name is invalid.(", kHuge), warn("Band Name is invalid.(", kHuge),
         warn("Band Name is invalid.(", kHuge)});
    row(
        "huge text without separator",
        [=] {
            return nums({s.IsChannelStandard(kHuge), s.GetFreq(kHuge, 1, 128),
                         s.GetFreq(kHuge, kHuge, 128), s.GetChNumFromFreq(kHuge, 0, kNaN, 0),
                         s.GetOffsetChUpDown(kHuge, kHuge, 0),
                         s.GetAvailableChannels(kHuge, kHuge, -kInf, kInf).size()});
        },
        str("0 -1 -1 -1 -1 0"),
        QVector<QString>(6, warn("Channel Standard is invalid.(", kHuge)).toList());
    row(
        "screen setters with a huge name",
        [] {
            stCHList t;
            ChStd::SetBandListName(kHuge, t);
            ChStd::SetBandListRange(kHuge, INT_MIN, t);
            return nums({t.techList.count(kHuge), t.bandList.size()}) + t.freqRangeList[0]
                   + t.chRangeList.join(str(";"));
        },
        str("11 11(-1.00 - -1.00)\n(-1.00 - -1.00)")
            + ChStd::GetBandListByMode(10, 0, 0).chRangeList.join(str(";")));
    const QString cdma = lenient(str("CDMA"), str("Band 0 (800)"));
    row(
        "huge names select slot 0", [] { return lenient(kHuge, kHuge); }, cdma);
    row(
        "empty names select slot 0", [] { return lenient(QString(), QString()); }, cdma);
    row(
        "names differing in case select slot 0",
        [] { return lenient(str("cdma"), str("band 0 (800)")); }, cdma);
    // A record over the whole int range and the whole real line, and one with
    // no channels, no frequencies and no formula.
    row("registered extremes",
        [] {
            const auto own = makeStore();
            const QString gsm = str("GSM"), wide = str("GSM - Wide"), none = str("Void");
            own->SetBandInfo(gsm, str("Wide"), INT_MIN, INT_MAX, -kInf, kInf, 0.0, INT_MIN, 1,
                             &ChBandStore::chstdGetGSM_900, false);
            own->SetBandInfo(gsm, none, 5, 1, kNaN, kNaN, kNaN, INT_MAX, 0, nullptr, true);
            const QList<ChInfo> hits = own->GetChInfoFromFreq(1e9);
            return nums({own->GetFreq(wide, 1, INT_MIN), own->GetChNumFromFreq(wide, 1, -0.0, 5),
                         own->GetAvailableChannels(wide, str("Reverse"), -1.0, 1.0).size(),
                         own->GetStartChannelNo(gsm, str("Wide"), 1),
                         own->GetStopChannelNo(gsm, str("Wide"), 1),
                         own->GetOffsetChUpDown(wide, 1, 0), hits.size(), hits.value(0).channelNo,
                         own->GetFreq(gsm, none, 0, 3), own->GetFreqNoLimit(gsm, none, 0, 3),
                         own->GetChInfoFromFreq(kNaN).size(),
                         own->GetStopChannelNo_InSample(gsm, none, 3, 0)});
        },
        nums({INT_MIN * 0.2, 0, 11, INT_MIN, INT_MAX, 0, 1, INT_MAX, -1, kNaN, 0, 1}),
        {str("D [ChStd]  Version :  " SAISKUKO_VERSION_STR), str("D AvailableChannels :  11")});
}

void TestBadInput::answers()
{
    QFETCH(Call, call);
    QFETCH(QString, expected);
    QFETCH(QStringList, log);
    LogCapture capture;
    QCOMPARE(call(), expected);
    QCOMPARE(capture.take(), log);
}

QTEST_APPLESS_MAIN(TestBadInput)
#include "tst_badinput.moc"
