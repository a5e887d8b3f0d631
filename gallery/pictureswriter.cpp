#include "pictureswriter.h"

#include "frame.h"
#include "look.h"
#include "pagetable.h"
#include "remchoice.h"
#include "samples.h"

#include <memory>

#include <QDir>
#include <QPixmap>
#include <QPropertyAnimation>
#include <QTextStream>

PicturesWriter::PicturesWriter(const QString &directory)
    : m_directory(directory)
{
    QDir().mkpath(directory);
}

bool PicturesWriter::writePages() const
{
    for (int rem : RemChoice::remValues()) {
        Look::setRem(rem);
        for (const PageEntry &page : pageTable()) {
            Frame frame(page.name);
            settle(frame);
            frame.resize(Frame::goodSize());
            // Heights are known once everything is polished and laid out, which painting sees to.
            frame.grab();
            frame.resize(frame.width(), frame.fullHeight());
            // A list lays its items out later on, and only then, and once painted, drops a needless bar.
            QCoreApplication::processEvents();
            frame.grab();
            QCoreApplication::processEvents();
            if (!write(frame, QStringLiteral("%1-%2.png").arg(page.name).arg(rem)))
                return false;
        }
    }
    return true;
}

bool PicturesWriter::writeSamples() const
{
    Look::setRem(12);
    for (const Sample &sample : sampleTable()) {
        const std::unique_ptr<QWidget> widget(sample.make());
        settle(*widget);
        widget->setAutoFillBackground(true);
        widget->setBackgroundRole(QPalette::Base);
        widget->adjustSize();
        if (!write(*widget, sample.name.toLower() + QStringLiteral(".png")))
            return false;
    }
    Frame frame(QStringLiteral("buttons"));
    frame.resize(Frame::goodSize());
    return write(frame, QStringLiteral("gallery.png"));
}

void PicturesWriter::settle(const QWidget &widget)
{
    const QList<QPropertyAnimation *> animations = widget.findChildren<QPropertyAnimation *>();
    for (QPropertyAnimation *animation : animations) {
        const bool isForward = animation->direction() == QAbstractAnimation::Forward;
        animation->setCurrentTime(isForward ? animation->duration() : 0);
    }
}

bool PicturesWriter::write(QWidget &widget, const QString &name) const
{
    const QString path = QDir(m_directory).filePath(name);
    if (!widget.grab().save(path)) {
        QTextStream(stderr) << tr("Can't write %1").arg(path) << Qt::endl;
        return false;
    }
    QTextStream(stdout) << path << Qt::endl;
    return true;
}
