// Every member that takes technology and band names, with names near the real
// ones and any numbers, and the channel formulas. Conversions back from a frequency are checked
// against the literal walk over every channel.
#include "fuzzinput.h"

#include "literalwalks.h"

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    fuzz::silence();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const ChBandStore &s = G_CHSTD;
    fuzz::Input in(data, size);
    while (in.more()) {
        const QString tech = in.tech(), band = in.band();
        switch (in.pick(26)) {
        case 0:
            s.GetEnumulator(tech, band);
            break;
        case 1:
            s.GetNumBand(tech);
            break;
        case 2:
            s.GetBandList(tech);
            break;
        case 3:
            s.IsChannelStandard(in.standard());
            break;
        case 4:
            s.CheckChannelStandardIsLTETDD(band);
            break;
        case 5:
            s.CheckChannelStandardIsTDS(band);
            break;
        case 6:
            s.CheckChannelStandardIsWiMax(band);
            break;
        case 7:
            s.GetStartFreq(tech, band);
            break;
        case 8:
            s.GetStartFreq(tech, band, in.link());
            break;
        case 9:
            s.GetStopFreq(tech, band, in.link());
            break;
        case 10:
            s.GetStartChannelNo(tech, band, in.link());
            break;
        case 11:
            s.GetStopChannelNo(tech, band, in.link());
            break;
        case 12:
            s.GetNumSubBand(tech, band);
            break;
        case 13:
            s.IsUplinkOnly(tech, band);
            break;
        case 14:
            s.GetDefaultIntBW(tech);
            break;
        case 15:
            s.GetFreq(tech, band, in.link(), in.channel());
            break;
        case 16:
            s.GetFreqNoLimit(tech, band, in.link(), in.channel());
            break;
        case 17:
            s.IsExistChannelNo(tech, band, in.link(), in.channel());
            break;
        case 18:
            s.GetStopChannelNo_InSample(tech, band, in.channel(), in.link());
            break;
        case 19:
            s.GetOffsetChUpDown(tech, band, in.channel(), in.link());
            break;
        case 20: {
            const int link = in.link(), preferred = in.channel();
            const double mhz = in.freq();
            FUZZ_CHECK(s.GetChNumFromFreq(tech, band, link, mhz, preferred)
                       == literal::chNumFromFreq(s, tech, band, link, mhz, preferred));
            break;
        }
        case 21:
            s.GetChNumRefString(tech, band, in.link());
            break;
        case 22:
            s.GetChNumRefString_List(tech, band, in.link());
            break;
        case 23:
            s.GetFreqRefString_List(tech, band, in.link());
            break;
        case 24: {
            const std::vector<ChFreqFunc> &formulas = fuzz::known().formulas;
            formulas[in.pick(int(formulas.size()))](in.channel(), in.freq(), in.channel());
            break;
        }
        default: {
            static ChTechnology slot;
            slot.SetTechName(tech);
            ChBand named;
            named.SetBandName(band);
            FUZZ_CHECK(slot.GetTechName() == tech && named.GetBandName() == band
                       && named.IsGlobal == (band == QLatin1String("Band Global")));
            break;
        }
        }
    }
    return 0;
}
