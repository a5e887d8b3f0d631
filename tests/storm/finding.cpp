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
const char *const expectedMessages[] = {
    "^This plugin does not support",
    "^Could not parse (stylesheet|application stylesheet)",
    "^QFont::setPixelSize: Pixel size <= 0",
    "^\"?QColor::",
    "^QWidget::set(Minimum|Maximum)Size: ",
    "^QWidgetLineControl::setSelection: Invalid start position", // a third click, where the text is gone
    "^QLineEdit::setSelection: Invalid start position",          // see toolkit.cpp
    "^Setting a QCompleter on non-editable QComboBox",
    "^QCssParser::parseHexColor: Unknown color name",
    "^QFSFileEngine::open: No file name specified",
    "^Cannot open file '",
    "^QLayout: Cannot add a null widget",
    "^QStandardPaths: XDG_RUNTIME_DIR not set",
    "^QXcbConnection: XCB error", // of windows that are gone before the server answers
    "^internal error: .* QXcbWindow",
};

bool isExpected(const QString &message)
{
    for (const char *pattern : expectedMessages) {
        if (QRegularExpression(QLatin1String(pattern)).match(message).hasMatch())
            return true;
    }
    return false;
}

void handleMessage(QtMsgType, const QMessageLogContext &, const QString &message)
{
    if (!isExpected(message))
        Finding::end(message);
}

void require(bool holds, const char *what)
{
    if (!holds)
        Finding::end(QLatin1String(what));
}

void checkGroup(TavikButtonGroup *group)
{
    const auto *buttons = group->findChild<QButtonGroup *>();
    const int id = group->checkedId();
    require(id == -1 || buttons->button(id), "The checked id is that of no button");
    require(!group->isNoButtonChecked() || id == -1, "No button is checked, and yet there is a checked id");
}

/// The fields of a popup in their order, which is that of its children.
enum Field { Hex, R, G, B, A, C, M, Y };

void checkPopup(const TavikColorPopup *popup)
{
    const QList<TavikLineEdit *> fields = popup->findChildren<TavikLineEdit *>();
    const auto number = [&](Field field) { return fields.at(field)->text().toInt(); };
    // A field keeps what was typed into it, also beyond what a colour can hold.
    const auto channel = [&](Field field) { return qBound(0, number(field), 255); };
    const QColor color = popup->currentColor();
    require(channel(R) == color.red(), "The field R shows another colour");
    require(channel(G) == color.green(), "The field G shows another colour");
    require(channel(B) == color.blue(), "The field B shows another colour");
    require(channel(A) == color.alpha(), "The field A shows another colour");
    require(number(C) == 255 - number(R), "The fields C and R do not belong together");
    require(number(M) == 255 - number(G), "The fields M and G do not belong together");
    require(number(Y) == 255 - number(B), "The fields Y and B do not belong together");
    const QString hex = fields.at(Hex)->text();
    if (color.isValid() && hex.size() == 6)
        require(QColor(QLatin1Char('#') + hex).rgb() == QColor(color.rgb()).rgb(),
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
