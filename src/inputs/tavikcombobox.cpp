#include "inputs/tavikcombobox.h"

#include "foundation/lenconverter.h"
#include "foundation/sheet_p.h"

#include <QLineEdit>
#include <QListView>
#include <QScrollBar>

namespace {

// All combo boxes look alike.
constexpr char color[] = "#404040";
constexpr char disabledColor[] = "#e0e0e0";
constexpr char bgColor[] = "#ffffff";
constexpr char selectionBgColor[] = "#13b585";
constexpr char itemSelectedBgColor[] = "#08a274";
constexpr char readOnlyBgColor[] = "#ffffff";
constexpr char dropDownBgColor[] = "#ffffff";
constexpr char dropDownHoverBgColor[] = "#13b585";
constexpr char dropDownDisabledBgColor[] = "#fafafa";
constexpr char borderColor[] = "#d3d3d3";
constexpr char hoverBorderColor[] = "#08a274";
constexpr char disabledBorderColor[] = "#bfbfbf";
constexpr char borderWidth[] = "1";
constexpr char borderRadius[] = "0";
constexpr double itemDesignHeight = 20.0;

} // namespace

TavikComboBox::TavikComboBox(Type type, QWidget *parent)
    : RemSized(parent)
{
    // The view must be there first: the sheets are also those of the view and of its scroll bar.
    auto *list = new QListView;
    TypographyTool::setFontHint(list);
    setView(list);
    TypographyTool::setFontHint(this);
    updateStyleSheet();
    setEditable(type == Editable);
    if (type == Editable)
        TypographyTool::setFontHint(lineEdit());
}

TavikComboBox::TavikComboBox(QWidget *parent)
    : TavikComboBox(ReadOnly, parent)
{
}

void TavikComboBox::setFontRemSz(double rem)
{
    m_fontSz = LenConverter::remToStrPx(rem);
    updateStyleSheet();
}

void TavikComboBox::updateStyleSheet()
{
    setStyleSheet(ownSheet());
    view()->setStyleSheet(viewSheet());
    view()->verticalScrollBar()->setStyleSheet(Sheet::verticalScrollBar(Sheet::HandleBorder::WithoutRight));
}

QString TavikComboBox::ownSheet() const
{
    return Sheet::join({
        {"TavikComboBox {color: ", color},
        {";font-size: ", m_fontSz},
        {"px;border: ", borderWidth},
        {"px solid ", borderColor},
        {";border-radius: ", borderRadius},
        {"px;padding: 0.1em;min-height: 1.1em;min-width: 6em;selection-background-color: ",
         selectionBgColor},
        {";}TavikComboBox:disabled {color: ", disabledColor},
        {";border-color: ", disabledBorderColor},
        {";}TavikComboBox:hover {border-color: ", hoverBorderColor},
        {";}TavikComboBox:editable {background: ", bgColor},
        {";selection-background-color: ", selectionBgColor},
        {";}TavikComboBox:read-only {background: ", readOnlyBgColor},
        {";}TavikComboBox:!editable:on {background: ", bgColor},
        {";}TavikComboBox::drop-down {subcontrol-origin: padding;subcontrol-position: top right;"
         "width: 1.57em;background: ",
         dropDownBgColor},
        {";border-left-width: 1px;border-left-color: ", borderColor},
        {";border-left-style: solid;border-top-right-radius: ", borderRadius},
        {"px;border-bottom-right-radius: ", borderRadius},
        {"px;}TavikComboBox::drop-down:disabled {background: ", dropDownDisabledBgColor},
        {";}TavikComboBox::drop-down:hover {background: ", dropDownHoverBgColor},
        {";}TavikComboBox::down-arrow {width: 0.7em;height: 0.7em;"
         "image: url(:/SpinboxArrow/images/arrow_down_disabled.svg);}"
         "TavikComboBox::down-arrow:on,TavikComboBox::down-arrow:disabled "
         "{image: url(:/SpinboxArrow/images/arrow_down_disabled.svg);}"},
    });
}

QString TavikComboBox::viewSheet() const
{
    return Sheet::join({
        {"QAbstractItemView {color: ", color},
        {";font-size: ", m_fontSz},
        {"px;outline: 0px;border-radius: ", borderRadius},
        {"px;border: ", borderWidth},
        {"px solid ", borderColor},
        {";}QAbstractItemView::item {height: ", LenConverter::iniRemToStrPx(itemDesignHeight)},
        {"px;border-radius: ", borderRadius},
        {"px;}QAbstractItemView::item:alternate {border: none;}QAbstractItemView::item:hover {background: ",
         selectionBgColor},
        {";}QAbstractItemView::item:selected {background: ", itemSelectedBgColor},
        {";}"},
    });
}

void TavikComboBox::wheelEvent(QWheelEvent *event)
{
    QComboBox::wheelEvent(event);
}
