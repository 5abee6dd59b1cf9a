#ifndef SAISKUKO_TECHSLOTS_H
#define SAISKUKO_TECHSLOTS_H

// Technology slots as the store numbers them. The numbers are part of every
// channel standard enumerator (100 x slot + band), so they never change.
enum TechSlot : int {
    SlotCdma = 0,
    SlotGsm = 1,
    SlotLteFdd = 2,
    SlotLteTdd = 3,
    SlotTdScdma = 4,
    SlotWcdma = 5,
    SlotWimax = 6,
    SlotNr = 7,
};

constexpr int kNumTechSlots = 8;

constexpr const char *kTechNames[kNumTechSlots] = {
    "CDMA", "GSM", "LTE-FDD", "LTE-TDD", "TD-SCDMA", "WCDMA", "WIMAX", "5G NR",
};

#endif
