#ifndef SAISKUKO_TOOLS_CHARTSVG_H
#define SAISKUKO_TOOLS_CHARTSVG_H

#include "chartlayout.h"

#include <QtCore/QByteArray>

// The layout as one self-contained SVG document: inline style, no external
// fonts or images, a <title> on every bar for a browser's hover text.
QByteArray chartSvg(const ChartLayout &layout);

#endif
