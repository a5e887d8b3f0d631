#ifndef GALLERY_CONTAINERSPECIMENS_H
#define GALLERY_CONTAINERSPECIMENS_H

#include <QCoreApplication>

class QWidget;
class TavikExpandable;
class TavikScrollArea;

/// Specimens of TavikContainer, TavikExpandable and TavikScrollArea.
class ContainerSpecimens
{
    Q_DECLARE_TR_FUNCTIONS(ContainerSpecimens)

public:
    static QWidget *column();
    static QWidget *row();

    /// A panel of settings, with what it reports.
    static QWidget *openPanel();
    static QWidget *closedPanel();

    /// A list that is too long for its area.
    static QWidget *scrollArea();

    /// The same in colours of an application's own.
    static QWidget *colouredScrollArea();

private:
    static QWidget *filled(
        TavikExpandable *shadow, const QString &name);
    static QWidget *filled(TavikScrollArea *area);
};

#endif
