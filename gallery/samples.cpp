#include "samples.h"

#include "look.h"

#include <QCoreApplication>
#include <QLayout>

#include <Tavik/TavikButton>
#include <Tavik/TavikLabel>

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("Samples", text);
}

QWidget *labels()
{
    return Look::row(
        {new TavikLabel(tr(QT_TRANSLATE_NOOP("Samples", "Opacity"))),
         new TavikLabel(tr(QT_TRANSLATE_NOOP("Samples", "0 is fully transparent")), TavikLabel::Assist)});
}

TavikButton *sized(TavikButton *button)
{
    button->setRemSize(4.667, 2.333);
    return button;
}

QWidget *buttons()
{
    const QIcon icon(QStringLiteral(":/Color/images/refresh.svg"));
    QWidget *row = Look::row({sized(new TavikButton(QStringLiteral("Solid"))),
                              sized(new TavikButton(QStringLiteral("Outline"), TavikButton::Outline)),
                              sized(new TavikButton(QStringLiteral("Toggle"), TavikButton::Toggle)),
                              sized(new TavikButton(QStringLiteral("Link"), TavikButton::Link)),
                              sized(new TavikButton(icon, QSizeF(1.5, 1.5), TavikButton::Flat))});
    row->layout()->setSpacing(LenConverter::iniRemToPx(4));
    return row;
}

} // namespace

const QVector<Sample> &sampleTable()
{
    static const QVector<Sample> table{
        {QStringLiteral("TavikLabel"), labels},
        {QStringLiteral("TavikButton"), buttons},
    };
    return table;
}
