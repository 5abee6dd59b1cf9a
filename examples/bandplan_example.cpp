// A small program to copy: find a band by the name a user types, convert channels and
// frequencies with it, list every band at a frequency, and report failures with their reasons.
//
//   bandplan_example [BAND [MHZ]]      e.g. bandplan_example NR:n78 3500
#include <saiskuko/bandplan.h>

#include <QtCore/QTextStream>

#include <cstdlib>

namespace {

const char *linkName(saiskuko::Link link)
{
    return link == saiskuko::Link::Up ? "UL" : "DL";
}

} // namespace

int main(int argc, char **argv)
{
    QTextStream out(stdout), err(stderr);
    const QString name = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("LTE:1");
    const double mhz = argc > 2 ? std::atof(argv[2]) : 1950.0;

    // Find the band once; a name that fits no band, or several, says so.
    const saiskuko::Result<saiskuko::Band> found = saiskuko::findBand(name);
    if (!found.ok()) {
        err << found.error().message << '\n';
        return 2;
    }
    const saiskuko::Band band = found.value();
    out << band.standard() << " [" << band.code() << "] " << saiskuko::duplexName(band.duplex())
        << '\n';

    // Conversions by the Band look no name up and copy nothing.
    for (const saiskuko::Link link : band.links()) {
        const QList<saiskuko::Record> records = band.records(link);
        if (records.isEmpty())
            continue;
        const saiskuko::Record first = records.first();
        const saiskuko::Result<double> centre = band.frequency(link, first.firstChannel);
        if (!centre.ok())
            continue;
        out << linkName(link) << " channel " << first.firstChannel << ": " << centre.value()
            << " MHz";
        const saiskuko::Result<QList<int>> back = band.channelsAt(link, centre.value());
        if (back.ok())
            out << ", back to channel " << back.value().first();
        const saiskuko::Result<int> paired = band.pairedChannel(link, first.firstChannel);
        if (paired.ok())
            out << ", paired with channel " << paired.value();
        out << '\n';
    }

    // A failure carries a code to branch on and a message for people.
    const saiskuko::Result<double> missing = band.frequency(saiskuko::Link::Down, -1);
    if (missing.error().code == saiskuko::ErrorCode::ChannelNotInBand
        || missing.error().code == saiskuko::ErrorCode::LinkNotServed)
        out << "channel -1: " << missing.error().message << '\n';

    // Every band and link holding a frequency, nearest channel first.
    for (const saiskuko::SearchHit &hit : saiskuko::search(mhz))
        out << mhz << " MHz: " << hit.band.standard() << ' ' << linkName(hit.link) << " channel "
            << hit.channel << " (offset " << hit.offsetMHz << " MHz)\n";
    return 0;
}
