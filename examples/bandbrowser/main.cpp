// The band browser: the band plan in a tree with a filter, and the selected
// band's records and conversions. `bandbrowser [BAND]` opens on a band ("LTE:1").
#include "bandbrowser.h"

#include <QtCore/QDebug>
#include <QtWidgets/QApplication>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    BandBrowser browser;
    if (argc > 1) {
        const auto band = saiskuko::findBand(QString::fromLocal8Bit(argv[1]));
        if (!band.ok()) {
            qWarning().noquote() << band.error().message;
            return 2;
        }
        browser.selectBand(band.value());
    }
    browser.resize(1440, 640);
    browser.show();
    return app.exec();
}
