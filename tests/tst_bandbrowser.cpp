// The band browser example drawn offscreen: its window, filtered and on a
// band, grabbed to bandbrowser.png in the build tree, must not be blank.
#include "../examples/bandbrowser/bandbrowser.h"

#include <QtTest/QtTest>

class TestBandBrowser : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void drawsItsWindow()
    {
        BandBrowser browser;
        browser.resize(1600, 560);
        browser.setFilterText(QStringLiteral("1950"));
        browser.selectBand(saiskuko::findBand(u"LTE:1").value());
        const QImage image = browser.grab().toImage();
        QVERIFY(image.save(QStringLiteral("bandbrowser.png")));
        // Frames and a background give a handful of colours; antialiased text many more.
        QSet<QRgb> colours;
        for (int i = 0; i < image.width() * image.height(); ++i)
            colours << image.pixel(i % image.width(), i / image.width());
        QVERIFY2(colours.size() > 32, qPrintable(QString::number(colours.size())));
    }
};

QTEST_MAIN(TestBandBrowser)
#include "tst_bandbrowser.moc"
