// BandBrowser: a window with the band plan as a filtered tree, and the
// selected band's records and a channel <-> frequency converter.
#ifndef BANDBROWSER_H
#define BANDBROWSER_H

#include <saiskuko/bandplanmodel.h>

#include <QtWidgets/QWidget>

class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QLineEdit;
class QSpinBox;
class QTreeView;
class QTreeWidget;

class BandBrowser : public QWidget
{
    Q_OBJECT
public:
    explicit BandBrowser(QWidget *parent = nullptr);

    // Filters the tree as the filter box does.
    void setFilterText(const QString &text);
    // Selects the band in the tree (clearing a filter that hides it).
    void selectBand(const saiskuko::Band &band);

private:
    void showBand(const saiskuko::Band &band);
    void convert();

    saiskuko::BandPlanModel m_model;
    saiskuko::BandPlanFilterModel m_filter;
    saiskuko::Band m_band;
    QLineEdit *m_filterBox;
    QTreeView *m_tree;
    QLabel *m_title;
    QTreeWidget *m_records;
    QComboBox *m_link;
    QSpinBox *m_channel;
    QLabel *m_frequency;
    QDoubleSpinBox *m_mhz;
    QLabel *m_channels;
};

#endif
