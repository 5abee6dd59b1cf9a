// Validation of channel standards and the time-division band classifiers.
#include <saiskuko/chbandstore.h>

#include "store/chbandstore_p.h"
#include "store/standardtext.h"
#include "store/technologies.h"

bool ChBandStore::IsChannelStandard(QString standard) const
{
    return answerForStandard(standard, false, [&](const QString &tech, const QString &band) {
        return StrictEnumerator(tech, band) >= 0;
    });
}

bool ChBandStore::IsChannelStandard(int code) const
{
    return AnswerForEnumerator(code, false, [&](const QString &tech, const QString &band) {
        return StrictEnumerator(tech, band) >= 0;
    });
}

bool ChBandStore::CheckChannelStandardIsLTETDD(QString band) const
{
    return knowsBandAs(SlotLteTdd, band, TimeDivision);
}

bool ChBandStore::CheckChannelStandardIsTDS(QString band) const
{
    return knowsBandAs(SlotTdScdma, band, TimeDivision);
}

bool ChBandStore::CheckChannelStandardIsWiMax(QString band) const
{
    return knowsBandAs(SlotWimax, band, TimeDivision);
}
