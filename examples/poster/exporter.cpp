#include "exporter.h"

#include "posterpainter.h"

#include <QDir>
#include <QFileInfo>
#include <QImageWriter>
#include <QSaveFile>

namespace {

/// A file that takes no more once it isn't wanted, so that who writes into it stops at once.
class CancellableFile : public QSaveFile
{
public:
    CancellableFile(const QString &name, const std::atomic_bool &isCancelled)
        : QSaveFile(name)
        , m_isCancelled(isCancelled)
    {
    }

protected:
    qint64 writeData(const char *data, qint64 size) override
    {
        return m_isCancelled ? -1 : QSaveFile::writeData(data, size);
    }

private:
    const std::atomic_bool &m_isCancelled;
};

} // namespace

Exporter::Exporter(QObject *parent)
    : QObject(parent)
{
}

Exporter::~Exporter()
{
    m_isCancelled = true;
    if (m_writer)
        m_writer->wait();
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
    m_isCancelled = false;
    Q_EMIT progressed(0, m_jobs.size());
    writeNext();
}

void Exporter::cancel()
{
    m_isCancelled = true;
}

void Exporter::writeNext()
{
    m_writer.reset(QThread::create([this] { m_problem = write(m_jobs.at(m_done)); }));
    connect(m_writer.get(), &QThread::finished, this, &Exporter::onWritten);
    m_writer->start();
}

void Exporter::onWritten()
{
    if (m_problem.isEmpty())
        Q_EMIT progressed(++m_done, m_jobs.size());
    if (m_done == m_jobs.size())
        finish(true, summary());
    else if (m_isCancelled)
        finish(false, tr("Cancelled: %1 of %2 pictures are written.").arg(m_done).arg(m_jobs.size()));
    else if (!m_problem.isEmpty())
        finish(false, m_problem);
    else
        writeNext();
}

void Exporter::finish(bool isDone, const QString &message)
{
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
    CancellableFile file(job.file, m_isCancelled);
    if (file.open(QIODevice::WriteOnly)) {
        QImageWriter writer(&file, QByteArrayLiteral("png"));
        if (writer.write(PosterPainter::picture(m_settings, m_photograph, job.size)) && file.commit())
            return {};
    }
    return tr("%1 can't be written: %2.").arg(QDir::toNativeSeparators(job.file), file.errorString());
}
