#include "common/filedrop.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace {

QStringList localFiles(const QMimeData *data)
{
    QStringList files;
    const QList<QUrl> urls = data->urls();
    for (const QUrl &url : urls) {
        if (url.isLocalFile())
            files.append(url.toLocalFile());
    }
    return files;
}

} // namespace

FileDrop::FileDrop(QWidget *target)
    : QObject(target)
{
    target->setAcceptDrops(true);
    target->installEventFilter(this);
}

bool FileDrop::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop)
        return QObject::eventFilter(watched, event);
    auto *drop = static_cast<QDropEvent *>(event);
    const QStringList files = localFiles(drop->mimeData());
    drop->setDropAction(Qt::CopyAction);
    drop->setAccepted(!files.isEmpty());
    if (type == QEvent::Drop && !files.isEmpty())
        Q_EMIT dropped(files);
    return true;
}
