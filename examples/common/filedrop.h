#ifndef COMMON_FILEDROP_H
#define COMMON_FILEDROP_H

#include <QObject>

/// Lets files be dropped on a widget.
///
/// \code
/// auto *drop = new FileDrop(list->viewport());
/// connect(drop, &FileDrop::dropped, list, &List::addFiles);
/// \endcode
class FileDrop : public QObject
{
    Q_OBJECT

public:
    /// Takes over what the target does with drags; the target owns it.
    explicit FileDrop(QWidget *target);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// Files were dropped, by their paths in the file system.
    void dropped(const QStringList &files);
};

#endif
