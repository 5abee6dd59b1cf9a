#ifndef SAISKUKO_TEST_LOGCAPTURE_H
#define SAISKUKO_TEST_LOGCAPTURE_H

#include <QtCore/QList>
#include <QtCore/QStringList>
#include <QtCore/QString>
#include <QtCore/QtGlobal>

#include <iostream>
#include <sstream>

// Records every Qt log line (type, category, text) and everything written to
// std::cout while alive, so tests can assert exact diagnostics and that no
// unexpected line appears.
struct LogLine
{
    QtMsgType type;
    QString category;
    QString text;
};

class LogCapture
{
public:
    LogCapture()
    {
        lines().clear();
        m_previous = qInstallMessageHandler(&LogCapture::handler);
        m_oldCout = std::cout.rdbuf(m_cout.rdbuf());
    }
    ~LogCapture()
    {
        std::cout.rdbuf(m_oldCout);
        qInstallMessageHandler(m_previous);
    }
    LogCapture(const LogCapture &) = delete;
    LogCapture &operator=(const LogCapture &) = delete;

    QList<LogLine> all() const { return lines(); }

    // The texts of the lines of one type, in order.
    QStringList texts(QtMsgType type) const
    {
        QStringList out;
        for (const LogLine &line : lines()) {
            if (line.type == type)
                out.append(line.text);
        }
        return out;
    }
    QStringList warnings() const { return texts(QtWarningMsg); }
    QStringList debugs() const { return texts(QtDebugMsg); }
    std::string standardOutput() const { return m_cout.str(); }

    void clear()
    {
        lines().clear();
        m_cout.str(std::string());
    }

private:
    static QList<LogLine> &lines()
    {
        static QList<LogLine> captured;
        return captured;
    }
    static void handler(QtMsgType type, const QMessageLogContext &context, const QString &text)
    {
        lines().append({type, QString::fromLatin1(context.category ? context.category : ""), text});
    }

    QtMessageHandler m_previous = nullptr;
    std::ostringstream m_cout;
    std::streambuf *m_oldCout = nullptr;
};

#endif
