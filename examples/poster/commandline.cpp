#include "commandline.h"

#include <algorithm>

CommandLine::CommandLine()
    : m_rem(QStringLiteral("rem"),
            tr("Pixels per rem: 10, 12, 18, 24 or 30. Without it, the screen decides."),
            QStringLiteral("number"))
    , m_picture(QStringLiteral("picture"), tr("Write a picture of the window to this PNG file, and end."),
                QStringLiteral("file"))
{
    m_parser.setApplicationDescription(tr("Makes posters and backgrounds of photographs."));
    m_parser.addHelpOption();
    m_parser.addOptions({m_rem, m_picture});
    m_parser.addPositionalArgument(QStringLiteral("settings"), tr("A poster's settings to open."),
                                   QStringLiteral("[settings]"));
}

bool CommandLine::needsNoDisplay(int argc, char **argv)
{
    return std::any_of(argv, argv + argc, [](const QByteArray &argument) {
        return argument.startsWith("--picture") || argument == "--help" || argument == "-h";
    });
}

QString CommandLine::read()
{
    m_parser.process(*QCoreApplication::instance());
    if (m_parser.isSet(m_rem) && !QVector<int>{10, 12, 18, 24, 30}.contains(rem()))
        return tr("No rem \"%1\". Pixels per rem: 10, 12, 18, 24, 30").arg(m_parser.value(m_rem));
    return {};
}
