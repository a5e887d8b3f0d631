#include "guidesamples.h"

#include "look.h"
#include "remchoice.h"

#include <QCoreApplication>
#include <QFormLayout>
#include <QVBoxLayout>

#include <Tavik/Tavik>

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("GuideSamples", text);
}

QWidget *rowAtPresentRem()
{
    auto *button = new TavikButton(tr(QT_TRANSLATE_NOOP("GuideSamples", "Save")));
    button->setRemSize(6, 2.333);
    auto *size = new TavikSpinbox(0, 100);
    size->setValue(12);
    size->setRemSize(6, 2.333);
    auto *pixels = new TavikLabel(QStringLiteral("1 rem = %1 px").arg(LenConverter::rem()));
    return Look::row({button, size, pixels});
}

} // namespace

QWidget *GuideSamples::start()
{
    auto *window = new TavikContainer(Vertical);
    auto *name = new TavikLineEdit(tr(QT_TRANSLATE_NOOP("GuideSamples", "Your name")));
    name->setText(QStringLiteral("Ada"));
    auto *button = new TavikButton(tr(QT_TRANSLATE_NOOP("GuideSamples", "Hello, Ada")));
    window->addWidget(name);
    window->addWidget(button);
    window->setFixedSize(LenConverter::remToPx(20), LenConverter::remToPx(7));
    return Look::row({window});
}

QWidget *GuideSamples::lengths()
{
    auto *rows = new QWidget;
    auto *column = new QVBoxLayout(rows);
    const int present = LenConverter::m_rem;
    for (int rem : RemChoice::remValues()) {
        LenConverter::m_rem = rem;
        column->addWidget(rowAtPresentRem());
    }
    LenConverter::m_rem = present;
    return rows;
}

QWidget *GuideSamples::wiring()
{
    auto *window = new QWidget;
    auto *fill = new TavikColorButton(QColor(0x08, 0xa2, 0x74), window);
    fill->setRemSize(7, 2.667);
    auto *bar = new TavikGradientBar(16.0, 2.0, window);
    bar->setEndColor(QColor(0x10, 0x8e, 0xe9));
    const QPoint asked(190, 32); // where the button asks for the popup: its centre
    fill->move(asked - fill->rect().center());
    bar->move(fill->geometry().right() + 20, fill->y() + (fill->height() - bar->height()) / 2);

    TavikColorPopup popup;
    popup.showColorPopup(QPoint(0, -2000), fill->currentColor());
    auto *picture = new QLabel(window);
    picture->setPixmap(popup.grab());
    picture->adjustSize();
    picture->move(asked.x() + popup.x(), asked.y());
    window->setFixedSize(bar->geometry().right() + 15, asked.y() + popup.height() + 10);
    return window;
}

QWidget *GuideSamples::rightToLeft()
{
    auto *form = new QWidget;
    form->setLayoutDirection(Qt::RightToLeft);
    form->setFixedWidth(LenConverter::remToPx(24));
    auto *rows = new QFormLayout(form);
    rows->addRow(new TavikLabel(QStringLiteral("الاسم")), new TavikLineEdit(QStringLiteral("طبقة")));
    rows->addRow(new TavikLabel(QStringLiteral("الحجم")), new TavikSpinbox);
    auto *visible = new TavikCheckBox(QStringLiteral("مرئي"));
    visible->setChecked(true);
    rows->addRow(visible);
    rows->addRow(new TavikButton(QStringLiteral("حفظ")));
    return form;
}
