#ifndef POSTER_COMMANDLINE_H
#define POSTER_COMMANDLINE_H

#include <QCommandLineParser>
#include <QCoreApplication>

/// The application's options.
class CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    CommandLine();

    /// Whether arguments ask for no window. Works before there is an application.
    static bool needsNoDisplay(int argc, char **argv);

    /// Reads the application's arguments; answers --help and unknown options by ending it. Returns what is
    /// wrong with the values, empty if nothing is.
    QString read();

    /// Pixels per rem, 0 if not given.
    int rem() const { return m_parser.value(m_rem).toInt(); }

    /// File for a picture of the window, empty if not given.
    QString picture() const { return m_parser.value(m_picture); }

    /// A settings file to open, empty if not given.
    QString settings() const { return m_parser.positionalArguments().value(0); }

private:
    QCommandLineParser m_parser;
    QCommandLineOption m_rem;
    QCommandLineOption m_picture;
};

#endif
