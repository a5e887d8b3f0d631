#include "finding.h"

#include "stage.h"

#include <Tavik/Tavik>

#include <QApplication>
#include <QButtonGroup>
#include <QRegularExpression>

#include <cstdio>
#include <cstdlib>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/common_interface_defs.h>
#endif

namespace {

/// What the toolkit says of arguments that nobody should pass, or of what the headless platform cannot do.
constexpr char expectedMessages[] =
    "^(This plugin does not support|Could not parse (application )?stylesheet|QStandardPaths: "
    "XDG_RUNTIME_DIR not set"
    "|QFont::setPixelSize: Pixel size <= 0|\"?QColor::|QWidget::set(Minimum|Maximum)Size: "
    "|QWidgetLineControl::setSelection: Invalid start position" // a third click, where the text is gone
    "|QLineEdit::setSelection: Invalid start position"          // see toolkit.cpp
    "|Setting a QCompleter on non-editable QComboBox|QCssParser::parseHexColor: Unknown color name"
    "|QFSFileEngine::open: No file name specified|Cannot open file '|QLayout: Cannot add a null widget"
    "|QXcbConnection: XCB error|internal error: .* QXcbWindow)"; // of windows that are gone before the server answers

void handleMessage(QtMsgType, const QMessageLogContext &, const QString &message)
{
    static const QRegularExpression expected{QLatin1String(expectedMessages)};
    if (!expected.match(message).hasMatch())
        Finding::end(message);
}

void require(bool holds, const char *what)
{
    if (!holds)
        Finding::end(QLatin1String(what));
}

void checkGroup(TavikButtonGroup *group)
{
    const int id = group->checkedId();
    require(id == -1 || group->findChild<QButtonGroup *>()->button(id),
            "The checked id is that of no button");
    require(!group->isNoButtonChecked() || id == -1, "No button is checked, and yet there is a checked id");
}

/// The fields of a popup are Hex, R, G, B, A, C, M and Y, in the order of its children.
void checkPopup(const TavikColorPopup *popup)
{
    const QList<TavikLineEdit *> fields = popup->findChildren<TavikLineEdit *>();
    const QColor color = popup->currentColor();
    const int channels[] = {color.red(), color.green(), color.blue(), color.alpha()};
    for (int i = 0; i < 4; ++i) {
        const int number = fields.at(1 + i)->text().toInt();
        // A field keeps what was typed into it, also beyond what a colour can hold.
        require(qBound(0, number, 255) == channels[i],
                "One of the fields R, G, B and A shows another colour");
        require(i == 3 || fields.at(5 + i)->text().toInt() == 255 - number,
                "One of the fields C, M and Y does not belong to R, G or B");
    }
    const QString hex = fields.front()->text();
    require(!color.isValid() || hex.size() != 6 ||
                QColor(QLatin1Char('#') + hex).rgb() == QColor(color.rgb()).rgb(),
            "The field Hex shows another colour");
}

} // namespace

void Finding::end(const QString &what)
{
    std::fprintf(stderr, "Finding: %s\n", qPrintable(what));
#ifdef __SANITIZE_ADDRESS__
    __sanitizer_print_stack_trace();
#endif
    std::_Exit(exitCode);
}

void Finding::listenToMessages()
{
    qInstallMessageHandler(handleMessage);
}

void Finding::check(Stage &stage)
{
    for (int slot = 0; slot < Stage::slotCount(); ++slot) {
        QWidget *control = stage.peek(slot);
        if (auto *group = qobject_cast<TavikButtonGroup *>(control))
            checkGroup(group);
        else if (const auto *popup = qobject_cast<TavikColorPopup *>(control))
            checkPopup(popup);
    }
}

void Finding::checkSettled()
{
    require(Stage::samplers().size() <= Stage::popupSlots().size(), "A sampler is left over");
}

void Finding::checkNothingIsLeft()
{
    for (const QWidget *widget : QApplication::allWidgets()) {
        if (widget->windowType() != Qt::Desktop) // the toolkit's own
            end(QLatin1String(widget->metaObject()->className()) + QLatin1String(" is left over"));
    }
}
