// The extension module saiskuko._saiskuko: the typed API's bands, conversions and searches,
// answered by the shared library and handed to Python as its own types.

#include <saiskuko/bandplan.h>
#include <saiskuko/saiskuko_version.h>

#include <pybind11/pybind11.h>

#include <cctype>
#include <functional>
#include <iterator>
#include <string>

namespace py = pybind11;
using saiskuko::Band;
using saiskuko::Duplex;
using saiskuko::ErrorCode;
using saiskuko::Link;
using saiskuko::Record;
using saiskuko::Result;
using saiskuko::SearchHit;

namespace {

// Python's name of each ErrorCode, in the enumeration's order.
constexpr const char *kErrorCodeNames[] = {
    "unknown_technology", "unknown_band",        "ambiguous_name",        "bad_name",
    "link_not_served",    "channel_not_in_band", "frequency_not_in_band", "not_a_channel_centre",
    "no_paired_channel",  "not_finite",
};
static_assert(std::size(kErrorCodeNames) == size_t(ErrorCode::NotFinite) + 1,
              "one name for each ErrorCode");

// saiskuko.Error, made once when the module loads and kept for the life of the process.
PyObject *errorType = nullptr;

py::str toPython(const QString &text)
{
    const QByteArray utf8 = text.toUtf8();
    return {utf8.constData(), size_t(utf8.size())};
}

QString fromPython(const std::string &text)
{
    return QString::fromUtf8(text.data(), int(text.size()));
}

// Raises saiskuko.Error carrying the API's message and the code's name.
[[noreturn]] void raise(const saiskuko::Error &error)
{
    py::object exception = py::handle(errorType)(toPython(error.message));
    exception.attr("code") = kErrorCodeNames[int(error.code)];
    PyErr_SetObject(errorType, exception.ptr());
    throw py::error_already_set();
}

template <typename T>
T valueOf(const Result<T> &result)
{
    if (!result.ok())
        raise(result.error());
    return result.value();
}

// The link a call left out: the band's only one, or either of a TDD band's.
Link impliedLink(const Band &band)
{
    switch (band.duplex()) {
    case Duplex::Sdl:
    case Duplex::Tdd:
        return Link::Down;
    case Duplex::Sul:
        return Link::Up;
    case Duplex::Fdd:
        break;
    }
    const QList<Link> links = band.links();
    if (links.size() == 1)
        return links.first();
    throw py::type_error(band.standard().toStdString()
                         + " serves both links: name one, link='dl' or link='ul'");
}

// A link as Python callers write it: saiskuko.Link, "dl"/"down", "ul"/"up" (any case), or None.
Link linkOf(const Band &band, py::handle link)
{
    if (link.is_none())
        return impliedLink(band);
    if (PyUnicode_Check(link.ptr())) {
        const std::string given = link.cast<std::string>();
        std::string text = given; // short: no allocation
        for (char &c : text)
            c = char(std::tolower(static_cast<unsigned char>(c)));
        if (text == "dl" || text == "down")
            return Link::Down;
        if (text == "ul" || text == "up")
            return Link::Up;
        throw py::value_error("link must be 'dl', 'ul', 'down' or 'up', not "
                              + saiskuko::echoed(fromPython(given)).toStdString());
    }
    if (py::isinstance<Link>(link))
        return link.cast<Link>();
    throw py::type_error("link must be a str or saiskuko.Link");
}

template <typename T, typename Convert>
py::list listOf(const QList<T> &items, Convert convert)
{
    py::list out(size_t(items.size()));
    for (int i = 0; i < items.size(); ++i)
        out[size_t(i)] = convert(items.at(i));
    return out;
}

py::list bandList(const QList<Band> &bands)
{
    return listOf(bands, [](const Band &band) { return py::cast(band); });
}

py::object bandOf(py::handle key)
{
    if (PyLong_Check(key.ptr()) && !PyBool_Check(key.ptr()))
        return py::cast(valueOf(saiskuko::bandByCode(key.cast<int>())));
    if (PyUnicode_Check(key.ptr()))
        return py::cast(valueOf(saiskuko::findBand(fromPython(key.cast<std::string>()))));
    throw py::type_error("a band is named by a str (\"LTE:1\") or its code (201)");
}

std::string recordRepr(const Record &r)
{
    return "<saiskuko.Record " + std::string(r.link == Link::Up ? "ul" : "dl") + " channels "
           + std::to_string(r.firstChannel) + ".." + std::to_string(r.lastChannel) + ", "
           + saiskuko::formatMHz(r.firstMHz).toStdString() + ".."
           + saiskuko::formatMHz(r.lastMHz).toStdString() + " MHz>";
}

std::string hitRepr(const SearchHit &h)
{
    return "<saiskuko.Hit " + h.band.standard().toStdString() + ' '
           + (h.link == Link::Up ? "ul" : "dl") + " channel " + std::to_string(h.channel) + " at "
           + saiskuko::formatMHz(h.channelMHz).toStdString() + " MHz>";
}

void defineTypes(py::module_ &m)
{
    py::enum_<Link>(m, "Link", "A link direction.")
        .value("DOWN", Link::Down, "downlink, base station to terminal")
        .value("UP", Link::Up, "uplink, terminal to base station");

    py::class_<Record>(m, "Record", "One sub-band record of a band: a run of channels of one link.")
        .def_readonly("link", &Record::link, "Its link (a record of a TDD band serves both).")
        .def_readonly("first_channel", &Record::firstChannel, "First channel number.")
        .def_readonly("last_channel", &Record::lastChannel, "Last channel number (inclusive).")
        .def_readonly("low_edge_mhz", &Record::lowEdgeMHz, "Lower band edge, MHz.")
        .def_readonly("high_edge_mhz", &Record::highEdgeMHz, "Upper band edge, MHz.")
        .def_readonly("first_mhz", &Record::firstMHz, "Centre of the first channel, MHz.")
        .def_readonly("last_mhz", &Record::lastMHz, "Centre of the last channel, MHz.")
        .def_readonly("step_mhz", &Record::stepMHz,
                      "Centre of the second channel minus that of the first, MHz (0 for one).")
        .def_readonly("span_low_mhz", &Record::spanLowMHz,
                      "Lower end of the frequencies the record holds (what search() reads), MHz.")
        .def_readonly("span_high_mhz", &Record::spanHighMHz,
                      "Upper end of the frequencies the record holds, MHz.")
        .def("__repr__", &recordRepr);

    py::class_<SearchHit>(m, "Hit", "One answer of search(): a band and link holding a frequency.")
        .def_readonly("band", &SearchHit::band, "The band.")
        .def_readonly("link", &SearchHit::link, "The link.")
        .def_readonly("channel", &SearchHit::channel, "The link's channel nearest the frequency.")
        .def_readonly("centre_mhz", &SearchHit::channelMHz, "That channel's centre, MHz.")
        .def_readonly("offset_mhz", &SearchHit::offsetMHz,
                      "The channel's centre minus the searched frequency, MHz.")
        .def_readonly("off_raster", &SearchHit::offRaster,
                      "True where the offset exceeds half the record's raster step.")
        .def("__repr__", &hitRepr);
}

void defineBand(py::module_ &m)
{
    py::class_<Band>(m, "Band",
                     "A band of the band plan. Get one from band(), bands(), search() or "
                     "bands_with_channel(). A method's link is saiskuko.Link or 'dl'/'ul' "
                     "('down'/'up'); it may be left out for a band of one link or a TDD band.")
        .def_property_readonly("code", &Band::code, "Its code: 100 x technology slot + band slot.")
        .def_property_readonly(
            "technology", [](const Band &b) { return toPython(b.technologyName()); },
            "Its technology's name ('LTE-FDD').")
        .def_property_readonly(
            "name", [](const Band &b) { return toPython(b.name()); }, "Its name ('Band 1 (2100)').")
        .def_property_readonly(
            "standard", [](const Band &b) { return toPython(b.standard()); },
            "Technology and name: 'LTE-FDD - Band 1 (2100)'.")
        .def_property_readonly(
            "short_name", [](const Band &b) { return toPython(b.shortName()); },
            "The shortest TECH:BAND name that band() resolves to it alone ('FDD:1').")
        .def_property_readonly(
            "duplex", [](const Band &b) { return toPython(saiskuko::duplexName(b.duplex())); },
            "How it uses its spectrum: 'FDD', 'TDD', 'SDL' or 'SUL'.")
        .def_property_readonly(
            "links",
            [](const Band &b) { return listOf(b.links(), [](Link l) { return py::cast(l); }); },
            "The links it answers for, uplink first; both for a TDD band.")
        .def_property_readonly(
            "records",
            [](const Band &b) {
                return listOf(b.records(), [](const Record &r) { return py::cast(r); });
            },
            "Its records in registration order, each with its own link.")
        .def(
            "frequency",
            [](const Band &b, int channel, py::handle link) {
                return valueOf(b.frequency(linkOf(b, link), channel));
            },
            py::arg("channel"), py::arg("link") = py::none(),
            "Centre frequency of a channel in MHz, from the first record of the link holding "
            "it. Raises Error (link_not_served, channel_not_in_band).")
        .def(
            "channels_at",
            [](const Band &b, double mhz, py::handle link) {
                return listOf(valueOf(b.channelsAt(linkOf(b, link), mhz)),
                              [](int channel) { return py::int_(channel); });
            },
            py::arg("mhz"), py::arg("link") = py::none(),
            "Every channel of the link centred within half a hertz of mhz, in registration "
            "order. Raises Error (not_finite, link_not_served, frequency_not_in_band, "
            "not_a_channel_centre).")
        .def(
            "nearest_channel",
            [](const Band &b, double mhz, py::handle link) {
                return valueOf(b.nearestChannel(linkOf(b, link), mhz));
            },
            py::arg("mhz"), py::arg("link") = py::none(),
            "The channel of the link centred nearest to mhz (the first on a tie). Raises "
            "Error (not_finite, link_not_served, frequency_not_in_band).")
        .def(
            "paired_channel",
            [](const Band &b, int channel, py::handle link) {
                return valueOf(b.pairedChannel(linkOf(b, link), channel));
            },
            py::arg("channel"), py::arg("link") = py::none(),
            "The channel of the other link paired with this one in an FDD band. Raises Error "
            "(channel_not_in_band, no_paired_channel).")
        .def(
            "__eq__", [](const Band &a, const Band &b) { return a == b; }, py::is_operator())
        .def("__hash__", [](const Band &b) { return std::hash<int>()(b.code()); })
        .def("__repr__", [](const Band &b) {
            return "<saiskuko.Band " + std::to_string(b.code()) + ' ' + b.standard().toStdString()
                   + '>';
        });
}

void defineFunctions(py::module_ &m)
{
    m.def("band", &bandOf, py::arg("name"),
          "A band by any name an engineer writes ('LTE:1', 'NR:n78', 'B1', "
          "'LTE-FDD - Band 1 (2100)') or by its code (201). Raises Error (unknown_technology, "
          "unknown_band, ambiguous_name, bad_name).");
    m.def(
        "bands",
        [](py::handle technology) {
            if (technology.is_none())
                return bandList(saiskuko::allBands());
            if (!PyUnicode_Check(technology.ptr()))
                throw py::type_error("a technology is named by a str ('NR', 'LTE-FDD')");
            const QString name = fromPython(technology.cast<std::string>());
            return bandList(saiskuko::bands(valueOf(saiskuko::findTechnology(name))));
        },
        py::arg("technology") = py::none(),
        "Every band by code, or those of one technology by its name or short form ('NR', "
        "'fdd'). Raises Error (unknown_technology, ambiguous_name).");
    m.def(
        "technologies",
        [] {
            return listOf(saiskuko::technologies(), [](saiskuko::Technology t) {
                return toPython(saiskuko::technologyName(t));
            });
        },
        "The technologies' names in slot order.");
    m.def(
        "search",
        [](double mhz) {
            return listOf(saiskuko::search(mhz), [](const SearchHit &h) { return py::cast(h); });
        },
        py::arg("mhz"),
        "Every band and link holding a frequency, nearest channel first; empty for one that no "
        "band holds.");
    m.def(
        "bands_with_channel",
        [](int channel) { return bandList(saiskuko::bandsWithChannel(channel)); },
        py::arg("channel"), "Every band with the channel in a record of either link, by code.");
}

} // namespace

PYBIND11_MODULE(_saiskuko, m)
{
    m.doc() = "The band plans of cellular and wireless standards: channels and frequencies.";
    m.attr("__version__") = SAISKUKO_VERSION_STR;

    errorType = PyErr_NewExceptionWithDoc(
        "saiskuko.Error",
        "Why a query has no answer: a ValueError whose .code names the reason "
        "('unknown_band', ...) and whose message says it for people.",
        PyExc_ValueError, nullptr);
    if (!errorType)
        throw py::error_already_set();
    m.attr("Error") = py::handle(errorType);
    py::tuple codes(std::size(kErrorCodeNames));
    for (size_t i = 0; i < std::size(kErrorCodeNames); ++i)
        codes[i] = kErrorCodeNames[i];
    m.attr("ERROR_CODES") = codes;

    defineTypes(m);
    defineBand(m);
    defineFunctions(m);
}
