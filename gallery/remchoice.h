#ifndef GALLERY_REMCHOICE_H
#define GALLERY_REMCHOICE_H

#include <QVector>
#include <QWidget>

class QGridLayout;
class TavikButtonGroup;

/// The choice of the pixels per rem, with the screens that have them.
class RemChoice : public QWidget
{
    Q_OBJECT

public:
    /// The values to choose from.
    static const QVector<int> &remValues();

    /// Shows LenConverter::rem() as chosen.
    explicit RemChoice(QWidget *parent = nullptr);

Q_SIGNALS:
    /// The user chose another number of pixels per rem.
    void remChosen(int rem);

private:
    void addChoice(QGridLayout *layout, int rem, const QString &screens);

    TavikButtonGroup *m_group;
};

#endif
