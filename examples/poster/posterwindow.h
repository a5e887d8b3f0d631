#ifndef POSTER_POSTERWINDOW_H
#define POSTER_POSTERWINDOW_H

#include "exporter.h"
#include "poster.h"

#include <QWidget>

class MessageBar;
class Panel;
class PhotoPanel;

/// The window: commands, preview and panels around one poster.
class PosterWindow : public QWidget
{
    Q_OBJECT

public:
    explicit PosterWindow(QWidget *parent = nullptr);
    ~PosterWindow() override;

    /// A good size for the window, in pixels.
    static QSize goodSize();

    Poster *poster() { return &m_poster; }
    Exporter *exporter() { return &m_exporter; }

    /// Opens a settings file; what it changes can be undone. Of a broken one only its message is seen.
    void openSettings(const QString &file);

    /// Saves to a settings file, which is the poster's own from then on. Returns whether that went well.
    bool saveSettings(const QString &file);

    /// Begins to export to a PNG file, or to files named after it.
    void exportTo(const QString &file);

    /// Adds photographs and chooses the last one.
    void addPhotographs(const QStringList &files);

    /// What the user is told now.
    QString message() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// The panels have taken their heights after the start.
    void settled();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    QWidget *buildHeader();
    QWidget *buildStage();
    QWidget *buildPanels();
    void connectExporter();
    void showTitle();
    void forgetUndoneFile(int index);
    bool save();
    bool saveAs();
    void askToOpen();
    void askToExport();
    void askForPhotographs();
    bool mayReplace(const QVector<Exporter::Job> &jobs);
    bool mayClose();
    void report(const QString &problem, const QString &success = {});

    Poster m_poster;
    Exporter m_exporter;
    MessageBar *m_messages;
    PhotoPanel *m_photographs;
    QString m_file;
    int m_openedAt = 0; // of the undo stack
    int m_movingPanels = 0;
};

#endif
