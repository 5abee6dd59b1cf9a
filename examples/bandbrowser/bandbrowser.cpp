// BandBrowser: the tree over BandPlanModel, and a band's records and conversions from the typed
// API.
#include "bandbrowser.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QTreeView>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QVBoxLayout>

#include <limits>

using namespace saiskuko;

BandBrowser::BandBrowser(QWidget *parent)
    : QWidget(parent), m_filterBox(new QLineEdit), m_tree(new QTreeView), m_title(new QLabel),
      m_records(new QTreeWidget), m_link(new QComboBox), m_channel(new QSpinBox),
      m_frequency(new QLabel), m_mhz(new QDoubleSpinBox), m_channels(new QLabel)
{
    setWindowTitle(tr("Band browser"));
    m_filter.setSourceModel(&m_model);
    m_tree->setModel(&m_filter);
    m_tree->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_filterBox->setPlaceholderText(tr("Filter: 1950, 18300, n78, LTE, B7"));
    m_filterBox->setClearButtonEnabled(true);

    auto *left = new QWidget;
    auto *leftLayout = new QVBoxLayout(left);
    leftLayout->addWidget(m_filterBox);
    leftLayout->addWidget(m_tree);

    m_records->setHeaderLabels(
        {tr("Link"), tr("Channels"), tr("Centres (MHz)"), tr("Edges (MHz)"), tr("Step (kHz)")});
    m_records->setRootIsDecorated(false);
    m_records->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_channel->setRange(0, std::numeric_limits<int>::max());
    m_mhz->setRange(0.0, 1e6);
    m_mhz->setDecimals(4);
    m_mhz->setSuffix(tr(" MHz"));
    auto *converter = new QGroupBox(tr("Converter"));
    auto *form = new QFormLayout(converter);
    form->addRow(tr("Link"), m_link);
    form->addRow(tr("Channel"), m_channel);
    form->addRow(QString(), m_frequency);
    form->addRow(tr("Frequency"), m_mhz);
    form->addRow(QString(), m_channels);

    auto *right = new QWidget;
    auto *rightLayout = new QVBoxLayout(right);
    rightLayout->addWidget(m_title);
    rightLayout->addWidget(m_records);
    rightLayout->addWidget(converter);

    auto *splitter = new QSplitter;
    splitter->addWidget(left);
    splitter->addWidget(right);
    splitter->setSizes({1000, 560});
    (new QVBoxLayout(this))->addWidget(splitter);

    connect(m_filterBox, &QLineEdit::textChanged, this, [this](const QString &text) {
        m_filter.setFilterText(text);
        if (text.trimmed().isEmpty())
            m_tree->collapseAll();
        else
            m_tree->expandAll();
    });
    // A proxy index answers CodeRole too, so bandAt() needs no mapping.
    connect(m_tree->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex &current) { showBand(BandPlanModel::bandAt(current)); });
    connect(m_link, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &BandBrowser::convert);
    connect(m_channel, QOverload<int>::of(&QSpinBox::valueChanged), this, &BandBrowser::convert);
    connect(m_mhz, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            &BandBrowser::convert);
    m_title->setText(tr("Select a band"));
}

void BandBrowser::setFilterText(const QString &text)
{
    m_filterBox->setText(text);
}

void BandBrowser::selectBand(const Band &band)
{
    QModelIndex index = m_filter.mapFromSource(m_model.indexOf(band));
    if (!index.isValid()) {
        m_filterBox->clear();
        index = m_filter.mapFromSource(m_model.indexOf(band));
    }
    m_tree->setCurrentIndex(index);
    m_tree->scrollTo(index);
}

void BandBrowser::showBand(const Band &band)
{
    if (band == m_band)
        return;
    m_band = band;
    m_title->setText(band.isValid() ? QStringLiteral("<b>%1</b> (%2, code %3)")
                                          .arg(band.standard(), duplexName(band.duplex()))
                                          .arg(band.code())
                                    : tr("Select a band"));
    m_records->clear();
    const QString range = QStringLiteral("%1–%2");
    for (const Record &r : band.records()) {
        m_records->addTopLevelItem(
            new QTreeWidgetItem({r.link == Link::Up ? tr("Uplink") : tr("Downlink"),
                                 range.arg(r.firstChannel).arg(r.lastChannel),
                                 range.arg(formatMHz(r.firstMHz), formatMHz(r.lastMHz)),
                                 range.arg(formatMHz(r.lowEdgeMHz), formatMHz(r.highEdgeMHz)),
                                 QString::number(r.stepMHz * 1000.0)}));
    }
    // Start the converter on the frequency filtered for, where the band holds it.
    bool isNumber = false;
    const double wanted = m_filterBox->text().toDouble(&isNumber);
    const QSignalBlocker blockLink(m_link), blockChannel(m_channel), blockMHz(m_mhz);
    m_link->clear();
    for (const Link link : band.links()) {
        m_link->addItem(link == Link::Up ? tr("Uplink") : tr("Downlink"), int(link));
        if (isNumber && band.withinEdges(link, wanted))
            m_link->setCurrentIndex(m_link->count() - 1);
    }
    const Link link = Link(m_link->currentData().toInt());
    const bool holds = isNumber && band.withinEdges(link, wanted);
    const int first = band.records(link).value(0).firstChannel;
    const int channel = holds ? band.nearestChannel(link, wanted).valueOr(first) : first;
    m_channel->setValue(channel);
    m_mhz->setValue(holds ? wanted : band.frequency(link, channel).valueOr(0.0));
    convert();
}

void BandBrowser::convert()
{
    if (!m_band.isValid())
        return;
    const Link link = Link(m_link->currentData().toInt());
    const Result<double> mhz = m_band.frequency(link, m_channel->value());
    m_frequency->setText(mhz.ok() ? QStringLiteral("= %1 MHz").arg(formatMHz(mhz.value()))
                                  : mhz.error().message);
    const Result<QList<int>> channels = m_band.channelsAt(link, m_mhz->value());
    if (channels.ok()) {
        QStringList numbers;
        for (const int channel : channels.value())
            numbers << QString::number(channel);
        m_channels->setText(tr("= channel %1").arg(numbers.join(QStringLiteral(", "))));
        return;
    }
    const Result<int> nearest = m_band.nearestChannel(link, m_mhz->value());
    m_channels->setText(nearest.ok() ? tr("nearest channel %1").arg(nearest.value())
                                     : channels.error().message);
}
