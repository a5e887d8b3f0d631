#include "focusmark_p.h"

#include "controlkeys_p.h"
#include "keyboardfilter_p.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QProxyStyle>

#include <utility>

namespace {

/// Puts the frame over all others in the window or scroll area: beside a control that fills its parent there
/// is no place to be seen.
class FrameStyle : public QProxyStyle
{
public:
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returned) const override
    {
        return hint == SH_FocusFrame_AboveWidget ? 1
                                                 : QProxyStyle::styleHint(hint, option, widget, returned);
    }
};

bool isDroppedDown(const QWidget *widget)
{
    return qobject_cast<const QAbstractItemView *>(widget) && widget->window()->windowType() == Qt::Popup;
}

/// They show a cursor, or a border of their own, or have a window to themselves.
bool showsFocus(const QWidget *widget)
{
    return qobject_cast<const QLineEdit *>(widget) || qobject_cast<const QAbstractSpinBox *>(widget) ||
           qobject_cast<const QComboBox *>(widget) || isDroppedDown(widget);
}

QWidget *marked(QWidget *focused)
{
    const auto *keys = focused->findChild<ControlKeys *>(QString(), Qt::FindDirectChildrenOnly);
    return keys ? keys->marked() : focused;
}

/// Deletes the mark when the library is unloaded while the application runs.
struct Instance
{
    Instance() = default;
    ~Instance() { delete mark; }
    Q_DISABLE_COPY_MOVE(Instance)

    QPointer<FocusMark> mark;
} instance;

} // namespace

FocusMark::~FocusMark()
{
    delete m_frame; // it has the style, which goes now
}

FocusMark *FocusMark::install()
{
    if (!instance.mark)
        instance.mark = new FocusMark(qApp);
    return instance.mark;
}

void FocusMark::setKeysInUse(bool inUse)
{
    FocusMark *mark = install();
    if (mark->m_keysInUse == inUse)
        return;
    mark->m_keysInUse = inUse;
    mark->update();
}

FocusMark::FocusMark(QObject *parent)
    : QObject(parent)
    , m_style(new FrameStyle)
{
    m_style->setParent(this);
    connect(qApp, &QApplication::focusChanged, this, &FocusMark::update);
}

void FocusMark::update()
{
    // Made anew for each widget: a frame asks the one that it is around, which may go before it.
    // Forgotten before it goes: if it has the focus itself, its end changes the focus once more.
    delete std::exchange(m_frame, nullptr).data();
    QWidget *focused = QApplication::focusWidget();
    if (!m_keysInUse || !focused || showsFocus(focused) || !KeyboardFilter::covers(focused))
        return;
    QWidget *around = marked(focused);
    m_frame = new QFocusFrame(around);
    m_frame->setStyle(m_style);
    m_frame->setWidget(around);
}
