#include "access/keys/focusmark_p.h"

#include "access/keys/controlkeys_p.h"
#include "access/keys/keyboardfilter_p.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QProxyStyle>

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
    // Taken off, and not deleted: the toolkit may be going through the children of the window that it is in.
    if (m_frame)
        m_frame->setWidget(nullptr);
    QWidget *focused = QApplication::focusWidget();
    if (m_keysInUse && focused && !showsFocus(focused) && KeyboardFilter::covers(focused))
        putAround(marked(focused));
}

void FocusMark::putAround(QWidget *widget)
{
    if (!m_frame) { // or gone with the window that it was in
        m_frame = new QFocusFrame(widget);
        m_frame->setStyle(m_style);
    }
    m_frame->setPalette({}); // which follows that of the widget before
    m_frame->setWidget(widget);
}
