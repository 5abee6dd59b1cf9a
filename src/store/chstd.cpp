// The global store G_CHSTD and its entry point.
#include <saiskuko/chstd.h>

// Built by the library's static initialisation; destroyed at unload.
ChBandStore G_CHSTD; // NOLINT(cert-err58-cpp): the store exists from load on, by design

ChStd::ChStd(QObject *parent) : QObject(parent)
{}

ChStd::~ChStd() = default;

ChBandStore *ChStd::GetChStdPointer()
{
    return &G_CHSTD;
}
