// Builds against an installed saiskuko and checks one conversion and the
// loaded band plan.
#include <saiskuko/saiskuko.h>

#include <cstdio>

int main()
{
    const double mhz = ChBandStore::chstdGetLTEBand1Dn(300, 2110.0, 0);
    const int lteFddBands = ChStd::GetChStdPointer()->Technologies[2].NumBand;
    std::printf("LTE-FDD band 1 channel 300: %.1f MHz; LTE-FDD bands: %d\n", mhz, lteFddBands);
    return (mhz == 2140.0 && lteFddBands == 38) ? 0 : 1;
}
