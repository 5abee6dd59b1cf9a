// Every member that takes a channel standard enumerator or a channel standard
// text, and the screen tables. A member by enumerator must answer as its
// by-name form does for the names behind the code.
#include "fuzzinput.h"

namespace {

// The names behind a code, as the by-enumerator members find them.
bool namesOf(const ChBandStore &s, int code, QString *tech, QString *band)
{
    const QStringList parts = s.GetEnumulator(code).split(QLatin1String(" - "));
    if (parts.size() < 2)
        return false;
    *tech = parts[0];
    *band = parts[1];
    return true;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    fuzz::silence();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const ChBandStore &s = *ChStd::GetChStdPointer();
    fuzz::Input in(data, size);
    while (in.more()) {
        const int code = in.code();
        QString tech, band;
        const bool valid = namesOf(s, code, &tech, &band);
        switch (in.pick(22)) {
        case 0:
            FUZZ_CHECK(s.IsChannelStandard(code) == valid);
            break;
        case 1:
            FUZZ_CHECK(s.GetTech(code) == (valid ? code / 100 : -1));
            break;
        case 2:
            FUZZ_CHECK(s.GetBand(code) == (valid ? code % 100 : -1));
            break;
        case 3:
            FUZZ_CHECK(s.GetBandName(code) == (valid ? band : QStringLiteral("None")));
            break;
        case 4:
            FUZZ_CHECK(s.GetNumSubBand(code) == (valid ? s.GetNumSubBand(tech, band) : -1));
            break;
        case 5: {
            const int link = in.link();
            FUZZ_CHECK(s.GetStartChannelNo(code, link)
                       == (valid ? s.GetStartChannelNo(tech, band, link) : -1));
            FUZZ_CHECK(s.GetStopChannelNo(code, link)
                       == (valid ? s.GetStopChannelNo(tech, band, link) : -1));
            break;
        }
        case 6: {
            const int link = in.link(), channel = in.channel();
            FUZZ_CHECK(s.GetOffsetChUpDown(code, link, channel)
                       == (valid ? s.GetOffsetChUpDown(tech, band, channel, link) : -1));
            break;
        }
        case 7: {
            const int link = in.link(), preferred = in.channel();
            const double mhz = in.freq();
            FUZZ_CHECK(s.GetChNumFromFreq(code, link, mhz, preferred)
                       == (valid ? s.GetChNumFromFreq(tech, band, link, mhz, preferred) : -1));
            break;
        }
        case 8:
            FUZZ_CHECK(fuzz::bitsOf(s.GetDefaultIntBW(code))
                       == fuzz::bitsOf(valid ? s.GetDefaultIntBW(tech) : -1.0));
            break;
        case 9:
            FUZZ_CHECK(s.IsUplinkOnly(code) == (!valid || s.IsUplinkOnly(tech, band)));
            break;
        case 10:
            FUZZ_CHECK(fuzz::bitsOf(s.GetStartFreq(code))
                       == fuzz::bitsOf(valid ? s.GetStartFreq(tech, band) : -1.0));
            break;
        case 11: {
            const int link = in.link();
            FUZZ_CHECK(fuzz::bitsOf(s.GetStartFreq(code, link))
                       == fuzz::bitsOf(valid ? s.GetStartFreq(tech, band, link) : -1.0));
            FUZZ_CHECK(fuzz::bitsOf(s.GetStopFreq(code, link))
                       == fuzz::bitsOf(valid ? s.GetStopFreq(tech, band, link) : -1.0));
            break;
        }
        case 12: {
            const int link = in.link(), channel = in.channel();
            FUZZ_CHECK(s.IsExistChannelNo(code, link, channel)
                       == (valid && s.IsExistChannelNo(tech, band, link, channel)));
            FUZZ_CHECK(fuzz::bitsOf(s.GetFreq(code, link, channel))
                       == fuzz::bitsOf(valid ? s.GetFreq(tech, band, link, channel) : -1.0));
            break;
        }
        case 13:
            s.GetFreq(in.standard(), in.link(), in.channel());
            break;
        case 14:
            s.GetFreq(in.standard(), in.direction(), in.channel());
            break;
        case 15:
            s.GetChNumFromFreq(in.standard(), in.link(), in.freq(), in.channel());
            break;
        case 16:
            s.GetChNumFromFreq(in.standard(), in.direction(), in.freq(), in.channel());
            break;
        case 17:
            s.GetOffsetChUpDown(in.standard(), in.link(), in.channel());
            break;
        case 18:
            s.GetOffsetChUpDown(in.standard(), in.direction(), in.channel());
            break;
        case 19: {
            const stCHList t = ChStd::GetBandListByMode(in.integer({0, 1, 6, 13, 20, 23, 24}),
                                                        in.code(), in.link());
            FUZZ_CHECK(t.techList.size() == t.bandList.size()
                       && t.chRangeList.size() == t.bandList.size() && t.freqRangeList.isEmpty());
            break;
        }
        case 20: {
            stCHList t;
            ChStd::SetBandListName(in.tech(), t);
            ChStd::SetBandListRange(in.tech(), in.link(), t);
            break;
        }
        default:
            s.GetEnumulator(code);
            break;
        }
    }
    return 0;
}
