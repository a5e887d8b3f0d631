#ifndef GALLERY_COMMANDLINE_H
#define GALLERY_COMMANDLINE_H

#include <QCommandLineParser>
#include <QCoreApplication>

/// The gallery's options.
class CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    CommandLine();

    /// Whether arguments ask for no window, but for files, help or the version. Works before there is an
    /// application.
    bool needsNoDisplay(const QStringList &arguments);

    /// Reads the application's arguments; answers --help, --version and unknown options by ending it.
    /// Returns what is wrong with the values, or an empty text.
    QString read();

    /// Name of the page to open.
    QString page() const;

    /// Pixels per rem, 0 if not given.
    int rem() const;

    /// Directory for pictures of the pages, empty if not given.
    QString picturesDirectory() const { return m_parser.value(m_pictures); }

    /// Directory for samples of the controls, empty if not given.
    QString samplesDirectory() const { return m_parser.value(m_samples); }

    /// Whether files are asked for.
    bool asksForFiles() const { return m_parser.isSet(m_pictures) || m_parser.isSet(m_samples); }

private:
    QCommandLineParser m_parser;
    QCommandLineOption m_help;
    QCommandLineOption m_version;
    QCommandLineOption m_page;
    QCommandLineOption m_rem;
    QCommandLineOption m_pictures;
    QCommandLineOption m_samples;
};

#endif
