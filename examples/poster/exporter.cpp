#include "exporter.h"

#include "posterpainter.h"

#include <QDir>
#include <QFileInfo>
#include <QImageWriter>
#include <QSaveFile>

Exporter::Exporter(QObject *parent)
    : QObject(parent)
{
    m_next.setSingleShot(true);
    connect(&m_next, &QTimer::timeout, this, &Exporter::doNext);
}

QVector<Exporter::Job> Exporter::jobs(const PosterSettings &settings, const QString &file)
{
    if (!settings.isBatch)
        return {{settings.size(), file}};
    const QFileInfo info(file);
    QVector<Job> jobs;
    const QVector<QSize> sizes = settings.exportSizes();
    for (const QSize &size : sizes) {
        const QString name = QStringLiteral("%1-%2x%3.png").arg(info.completeBaseName()).arg(size.width());
        jobs.append({size, info.dir().filePath(name.arg(size.height()))});
    }
    return jobs;
}

void Exporter::start(const PosterSettings &settings, const Photograph &photograph, const QVector<Job> &jobs)
{
    if (isBusy() || jobs.isEmpty())
        return;
    m_settings = settings;
    m_photograph = photograph;
    m_jobs = jobs;
    m_done = 0;
    Q_EMIT progressed(0, m_jobs.size());
    m_next.start();
}

void Exporter::cancel()
{
    if (isBusy())
        finish(false, tr("Cancelled: %1 of %2 pictures are written.").arg(m_done).arg(m_jobs.size()));
}

void Exporter::doNext()
{
    if (m_done == m_jobs.size())
        return finish(true, summary());
    const QString problem = write(m_jobs.at(m_done));
    if (!problem.isEmpty())
        return finish(false, problem);
    ++m_done;
    m_next.start();
    Q_EMIT progressed(m_done, m_jobs.size());
}

void Exporter::finish(bool isDone, const QString &message)
{
    m_next.stop();
    m_jobs.clear();
    m_photograph = Photograph();
    Q_EMIT finished(isDone, message);
}

QString Exporter::summary() const
{
    const QFileInfo first(m_jobs.first().file);
    if (m_jobs.size() == 1)
        return tr("%1 is written.").arg(QDir::toNativeSeparators(first.filePath()));
    return tr("%1 pictures are written to %2.")
        .arg(m_jobs.size())
        .arg(QDir::toNativeSeparators(first.absolutePath()));
}

QString Exporter::write(const Job &job) const
{
    QSaveFile file(job.file);
    if (file.open(QIODevice::WriteOnly)) {
        QImageWriter writer(&file, QByteArrayLiteral("png"));
        if (writer.write(PosterPainter::picture(m_settings, m_photograph, job.size)) && file.commit())
            return {};
    }
    return tr("%1 can't be written: %2.").arg(QDir::toNativeSeparators(job.file), file.errorString());
}
