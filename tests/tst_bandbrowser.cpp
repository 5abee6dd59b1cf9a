// The band browser example drawn offscreen: its window, filtered and on a
// band, grabbed to bandbrowser.png in the build tree, must not be blank.
#include "bandbrowser.h"

#include <QtCore/QSet>
#include <QtTest/QtTest>

class TestBandBrowser : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void drawsItsWindow()
    {
        BandBrowser browser;
        browser.resize(1440, 560);
        browser.setFilterText(QStringLiteral("1950"));
        browser.selectBand(saiskuko::findBand(u"LTE:1").value());
        browser.show();
        QVERIFY(QTest::qWaitForWindowExposed(&browser));
        const QImage image = browser.grab().toImage();
        QVERIFY(image.save(QStringLiteral("bandbrowser.png")));
        QSet<QRgb> colours;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                colours << image.pixel(x, y);
        // Frames and a background give a handful; text, antialiased, many more.
        QVERIFY2(colours.size() > 32, qPrintable(QString::number(colours.size())));
    }
};

QTEST_MAIN(TestBandBrowser)
#include "tst_bandbrowser.moc"
