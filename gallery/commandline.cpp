#include "commandline.h"

#include "pagetable.h"
#include "remchoice.h"

namespace {

QString pageNames()
{
    QStringList names;
    for (const PageEntry &page : pageTable())
        names.append(page.name);
    return names.join(QStringLiteral(", "));
}

QString remNumbers()
{
    QStringList numbers;
    for (int rem : RemChoice::remValues())
        numbers.append(QString::number(rem));
    return numbers.join(QStringLiteral(", "));
}

} // namespace

CommandLine::CommandLine()
    : m_help(m_parser.addHelpOption())
    , m_version(m_parser.addVersionOption())
    , m_page(QStringLiteral("page"), tr("Open at this page: %1.").arg(pageNames()), QStringLiteral("name"))
    , m_rem(QStringLiteral("rem"),
            tr("Pixels per rem: %1. Without it, the screen decides.").arg(remNumbers()),
            QStringLiteral("number"))
    , m_pictures(QStringLiteral("pictures"),
                 tr("Write every page at every rem as PNG files into this directory, and end."),
                 QStringLiteral("directory"))
    , m_samples(QStringLiteral("samples"),
                tr("Write a small PNG file of each control, and one of the window, into this directory, "
                   "and end."),
                QStringLiteral("directory"))
{
    m_parser.setApplicationDescription(tr("Shows every control of Tavik, with the code that makes it."));
    m_parser.addOptions({m_page, m_rem, m_pictures, m_samples});
}

bool CommandLine::needsNoDisplay(const QStringList &arguments)
{
    // The toolkit's own options are still among them, and unknown to us: no reason to complain yet.
    m_parser.parse(arguments);
    return asksForFiles() || m_parser.isSet(m_help) || m_parser.isSet(m_version);
}

QString CommandLine::read()
{
    m_parser.process(*QCoreApplication::instance());
    if (!findPage(page()))
        return tr("No page \"%1\". Pages: %2").arg(page(), pageNames());
    if (m_parser.isSet(m_rem) && !RemChoice::remValues().contains(rem()))
        return tr("No rem \"%1\". Pixels per rem: %2").arg(m_parser.value(m_rem), remNumbers());
    for (const QCommandLineOption &option : {m_pictures, m_samples}) {
        if (m_parser.isSet(option) && m_parser.value(option).isEmpty())
            return tr("--%1 needs a directory").arg(option.names().first());
    }
    return {};
}

QString CommandLine::page() const
{
    return m_parser.isSet(m_page) ? m_parser.value(m_page) : pageTable().first().name;
}

int CommandLine::rem() const
{
    return m_parser.value(m_rem).toInt();
}
