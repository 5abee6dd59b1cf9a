#ifndef SAISKUKO_FORMULALIST_H
#define SAISKUKO_FORMULALIST_H

// Every channel number formula, in order of definition, as
//   OFFSET(stem, offset, step): base + (channel - offset) x step
//   REF(stem, step):            base + (channel - ref) x step (5G NR)
//   TIMES5(stem):               base + 5 x channel, the product in integers
// chstdGetWIMAX_Common4 is base + channel / 8, which the 0.125 step gives
// exactly. The list is expanded for the definitions and for the traits that
// tell the fast searches how each formula grows.
// clang-format off
#define SAISKUKO_FORMULAS(OFFSET, REF, TIMES5) \
    OFFSET(CDMA_Band0_1, 0, 0.03) \
    OFFSET(CDMA_Band0_2, 1023, 0.03) \
    OFFSET(CDMA_Band1_4, 0, 0.05) \
    OFFSET(CDMA_Band2_1, 0, 0.025) \
    OFFSET(CDMA_Band2_2, 1328, 0.025) \
    OFFSET(CDMA_Band3_1, 0, 0.0125) \
    OFFSET(CDMA_Band3_2, 800, 0.0125) \
    OFFSET(CDMA_Band3_3, 1040, 0.0125) \
    OFFSET(CDMA_Band3_4, 1200, 0.0125) \
    OFFSET(CDMA_Band5_1, 1, 0.025) \
    OFFSET(CDMA_Band5_2, 512, 0.025) \
    OFFSET(CDMA_Band5_3, 1024, 0.02) \
    OFFSET(CDMA_Band5_4, 1792, 0.02) \
    OFFSET(CDMA_Band10_2, 720, 0.025) \
    OFFSET(GSM_450, 259, 0.2) \
    OFFSET(GSM_480, 306, 0.2) \
    OFFSET(GSM_850, 128, 0.2) \
    OFFSET(GSM_900, 0, 0.2) \
    OFFSET(GSM_900E_2, 1024, 0.2) \
    OFFSET(GSM_DCS1800, 512, 0.2) \
    OFFSET(LTEBand1Up, 18000, 0.1) \
    OFFSET(LTEBand1Dn, 0, 0.1) \
    OFFSET(LTEBand2Up, 18600, 0.1) \
    OFFSET(LTEBand2Dn, 600, 0.1) \
    OFFSET(LTEBand3Up, 19200, 0.1) \
    OFFSET(LTEBand3Dn, 1200, 0.1) \
    OFFSET(LTEBand4Up, 19950, 0.1) \
    OFFSET(LTEBand4Dn, 1950, 0.1) \
    OFFSET(LTEBand5Up, 20400, 0.1) \
    OFFSET(LTEBand5Dn, 2400, 0.1) \
    OFFSET(LTEBand7Up, 20750, 0.1) \
    OFFSET(LTEBand7Dn, 2750, 0.1) \
    OFFSET(LTEBand8Up, 21450, 0.1) \
    OFFSET(LTEBand8Dn, 3450, 0.1) \
    OFFSET(LTEBand9Up, 21800, 0.1) \
    OFFSET(LTEBand9Dn, 3800, 0.1) \
    OFFSET(LTEBand10Up, 22150, 0.1) \
    OFFSET(LTEBand10Dn, 4150, 0.1) \
    OFFSET(LTEBand11Up, 22750, 0.1) \
    OFFSET(LTEBand11Dn, 4750, 0.1) \
    OFFSET(LTEBand12Up, 23010, 0.1) \
    OFFSET(LTEBand12Dn, 5010, 0.1) \
    OFFSET(LTEBand13Up, 23180, 0.1) \
    OFFSET(LTEBand13Dn, 5180, 0.1) \
    OFFSET(LTEBand14Up, 23280, 0.1) \
    OFFSET(LTEBand14Dn, 5280, 0.1) \
    OFFSET(LTEBand17Up, 23730, 0.1) \
    OFFSET(LTEBand17Dn, 5730, 0.1) \
    OFFSET(LTEBand18Up, 23850, 0.1) \
    OFFSET(LTEBand18Dn, 5850, 0.1) \
    OFFSET(LTEBand19Up, 24000, 0.1) \
    OFFSET(LTEBand19Dn, 6000, 0.1) \
    OFFSET(LTEBand20Up, 24150, 0.1) \
    OFFSET(LTEBand20Dn, 6150, 0.1) \
    OFFSET(LTEBand21Up, 24450, 0.1) \
    OFFSET(LTEBand21Dn, 6450, 0.1) \
    OFFSET(LTEBand24Up, 25700, 0.1) \
    OFFSET(LTEBand24Dn, 7700, 0.1) \
    OFFSET(LTEBand22Up, 24600, 0.1) \
    OFFSET(LTEBand22Dn, 6600, 0.1) \
    OFFSET(LTEBand23Up, 25500, 0.1) \
    OFFSET(LTEBand23Dn, 7500, 0.1) \
    OFFSET(LTEBand25Up, 26040, 0.1) \
    OFFSET(LTEBand25Dn, 8040, 0.1) \
    OFFSET(LTEBand26Up, 26690, 0.1) \
    OFFSET(LTEBand26Dn, 8690, 0.1) \
    OFFSET(LTEBand27Up, 27040, 0.1) \
    OFFSET(LTEBand27Dn, 9040, 0.1) \
    OFFSET(LTEBand28Up, 27210, 0.1) \
    OFFSET(LTEBand28Dn, 9210, 0.1) \
    OFFSET(LTEBand29Up, 27660, 0.1) \
    OFFSET(LTEBand29Dn, 9660, 0.1) \
    OFFSET(LTEBand30Dn, 9770, 0.1) \
    OFFSET(LTEBand31Up, 27760, 0.1) \
    OFFSET(LTEBand31Dn, 9870, 0.1) \
    OFFSET(LTEBand32Dn, 9920, 0.1) \
    OFFSET(LTEBand33, 36000, 0.1) \
    OFFSET(LTEBand34, 36200, 0.1) \
    OFFSET(LTEBand35, 36350, 0.1) \
    OFFSET(LTEBand36, 36950, 0.1) \
    OFFSET(LTEBand37, 37550, 0.1) \
    OFFSET(LTEBand38, 37750, 0.1) \
    OFFSET(LTEBand39, 38250, 0.1) \
    OFFSET(LTEBand40, 38650, 0.1) \
    OFFSET(LTEBand41, 39650, 0.1) \
    OFFSET(LTEBand42, 41590, 0.1) \
    OFFSET(LTEBand43, 43590, 0.1) \
    OFFSET(LTEBand44, 45590, 0.1) \
    OFFSET(LTEBand45, 46590, 0.1) \
    OFFSET(LTEBand46, 46790, 0.1) \
    OFFSET(LTEBand47, 54540, 0.1) \
    OFFSET(LTEBand48, 55240, 0.1) \
    OFFSET(LTEBand65Up, 131072, 0.1) \
    OFFSET(LTEBand65Dn, 65536, 0.1) \
    OFFSET(LTEBand66Up, 131972, 0.1) \
    OFFSET(LTEBand66Dn, 66436, 0.1) \
    OFFSET(LTEBand67Dn, 67336, 0.1) \
    OFFSET(LTEBand68Up, 132672, 0.1) \
    OFFSET(LTEBand68Dn, 67536, 0.1) \
    OFFSET(LTEBand69Dn, 67836, 0.1) \
    OFFSET(LTEBand70Up, 132972, 0.1) \
    OFFSET(LTEBand70Dn, 68336, 0.1) \
    OFFSET(LTEBand71Up, 133122, 0.1) \
    OFFSET(LTEBand71Dn, 68586, 0.1) \
    OFFSET(LTEBand72Up, 133472, 0.1) \
    OFFSET(LTEBand72Dn, 68936, 0.1) \
    OFFSET(TDSCDMA_Common2, -1, 0.2) \
    OFFSET(WIMAX_Common1, 0, 1.25) \
    OFFSET(WIMAX_Common2, 0, 1.75) \
    TIMES5(WIMAX_Common3) \
    OFFSET(WIMAX_Common4, 0, 0.125) \
    REF(5GNRBand, 0.005) \
    REF(5GNRBand15k, 0.015) \
    REF(5GNRBand60k, 0.06) \
    OFFSET(CDMA_Band789, 0, 0.05) \
    OFFSET(CDMA_Band10_1, 0, 0.025) \
    OFFSET(TDSCDMA_Common, 0, 0.2) \
    OFFSET(GSM_900E_1, 0, 0.2) \
    OFFSET(GSM_900R_1, 0, 0.2) \
    OFFSET(WCDMA_Common, 0, 0.2) \
    OFFSET(LTEBand30Up, 27660, 0.1) \
    OFFSET(GSM_900R_2, 1024, 0.2) \
    OFFSET(GSM_PCS1900, 512, 0.2) \
    OFFSET(LTEBand32Up, 27760, 0.1) \
    OFFSET(LTEBand67Up, 131972, 0.1) \
    OFFSET(LTEBand69Up, 132672, 0.1)
// clang-format on

#endif
