#ifndef SAISKUKO_CHSTD_H
#define SAISKUKO_CHSTD_H

#include <saiskuko/chbandstore.h>

#include <QtCore/QObject>
#include <QtCore/QString>

// The library's one band store, built while the library loads.
extern SAISKUKO_EXPORT ChBandStore G_CHSTD;

// Entry point for callers and the screen-table builders.
class SAISKUKO_EXPORT ChStd : public QObject
{
public:
    explicit ChStd(QObject *parent = nullptr);
    ~ChStd() override;

    static ChBandStore *GetChStdPointer();

    // Screen tables: the bands of the technologies an instrument mode covers.
    static stCHList GetBandListByMode(int mode, int unused, int linkSel);
    static void SetBandListName(QString tech, stCHList &list);
    static void SetBandListRange(QString tech, int linkSel, stCHList &list);
};

#endif
