#ifndef POSTER_EXPORTER_H
#define POSTER_EXPORTER_H

#include "photograph.h"
#include "postersettings.h"

#include <QObject>
#include <QThread>
#include <QVector>

#include <atomic>
#include <memory>

/// Writes posters into PNG files, one after the other on a thread of its own: a large picture takes seconds, in
/// which the application stays alive and can cancel.
///
/// A file is there wholly or not at all; one that stood there before stays until the new one is complete.
class Exporter : public QObject
{
    Q_OBJECT

public:
    /// A picture to write.
    struct Job
    {
        QSize size; // pixels
        QString file;
    };

    explicit Exporter(QObject *parent = nullptr);
    ~Exporter() override;

    /// The jobs for all sizes that settings ask for. A single one is written to the file itself, several to
    /// files that are named after it and their sizes: "poster-1920x1080.png".
    static QVector<Job> jobs(const PosterSettings &settings, const QString &file);

    /// Begins with the first job; settings and photograph stay as they are now. Has no effect while jobs are
    /// under way.
    void start(const PosterSettings &settings, const Photograph &photograph, const QVector<Job> &jobs);

    /// Leaves out the jobs that are not done yet, the one under way too. finished() follows.
    void cancel();

    /// Whether jobs are under way.
    bool isBusy() const { return !m_jobs.isEmpty(); }

Q_SIGNALS:
    /// So many of all jobs are done.
    void progressed(int done, int all);

    /// All jobs are done, or none follows any more. The message tells the user what has become of them.
    void finished(bool isDone, const QString &message);

private:
    void writeNext();
    void onWritten();
    void finish(bool isDone, const QString &message);
    QString summary() const;
    QString write(const Job &job) const;

    PosterSettings m_settings;
    Photograph m_photograph;
    QVector<Job> m_jobs;
    int m_done = 0;
    std::unique_ptr<QThread> m_writer;
    QString m_problem; // of the last job
    std::atomic_bool m_isCancelled{false};
};

#endif
