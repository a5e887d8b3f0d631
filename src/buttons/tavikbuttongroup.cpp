#include "buttons/tavikbuttongroup.h"

#include "buttons/tavikbutton.h"
#include "foundation/icontool.h"
#include "foundation/lengths_p.h"
#include "foundation/sheet_p.h"

#include <QButtonGroup>
#include <QRadioButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr char withoutLeftBorder[] =
    "TavikButton,TavikButton:checked,TavikButton:unchecked,TavikButton:hover,TavikButton:hover:checked,"
    "TavikButton:hover:unchecked,TavikButton:pressed,TavikButton:pressed:checked,"
    "TavikButton:pressed:unchecked {border-left-width: 0px;}";

QBoxLayout *boxLayout(Direction direction)
{
    if (direction == Horizontal)
        return new QHBoxLayout;
    return new QVBoxLayout;
}

} // namespace

struct TavikButtonGroup::PixelLengths
{
    int font;
    QSize button;
    int spacing;
    bool hasMargins;
};

TavikButtonGroup::TavikButtonGroup(Direction direction, const PixelLengths &lengths, Mode mode,
                                   QWidget *parent)
    : QWidget(parent)
    , m_layout(boxLayout(direction))
    , m_mode(mode)
    , m_btnSz(lengths.button)
    , m_fontPxSz(lengths.font)
{
    setAlignment(Qt::AlignCenter);
    if (!lengths.hasMargins)
        m_layout->setContentsMargins(0, 0, 0, 0);
    setLayout(m_layout);
    m_layout->setSpacing(lengths.spacing);

    m_group = new QButtonGroup(this);
    if (mode == Exclusive || mode == NonExclusive)
        m_group->setExclusive(mode == Exclusive);
    connect(m_group, &QButtonGroup::idClicked, this, &TavikButtonGroup::onButtonClicked);
}

TavikButtonGroup::TavikButtonGroup(Direction direction, double fontRemSz, const QSizeF &btnRemSz, Mode mode,
                                   double remSpacing, QWidget *parent)
    : TavikButtonGroup(direction,
                       PixelLengths{LenConverter::remToPx(fontRemSz), Lengths::remToPx(btnRemSz),
                                    LenConverter::remToPx(remSpacing), false},
                       mode, parent)
{
}

TavikButtonGroup::TavikButtonGroup(Direction direction, int fontPxSz, const QSize &btnPxSz, Mode mode,
                                   int pxSpacing, QWidget *parent)
    : TavikButtonGroup(direction, PixelLengths{fontPxSz, btnPxSz, pxSpacing, true}, mode, parent)
{
}

TavikButtonGroup::TavikButtonGroup(Direction direction, QWidget *parent)
    : TavikButtonGroup(direction, 1.167, QSizeF(0, 0), Exclusive, 0.0, parent)
{
}

TavikButtonGroup::TavikButtonGroup(QWidget *parent)
    : TavikButtonGroup(Vertical, parent)
{
}

template <class Button>
Button *TavikButtonGroup::add(Button *button)
{
    m_layout->addWidget(button);
    m_group->addButton(button, m_nextId++);
    return button;
}

TavikButton *TavikButtonGroup::withFixedSize(TavikButton *button) const
{
    if (m_btnSz.width() > 0 && m_btnSz.height() > 0)
        button->setFixedSize(m_btnSz);
    return button;
}

TavikButton *TavikButtonGroup::addTextButton(const QString &text)
{
    TavikButton *button = add(withFixedSize(new TavikButton(text, TavikButton::Toggle)));
    button->setFontPxSz(m_fontPxSz);
    if (m_layout->spacing() == 0 && m_group->buttons().size() >= 2)
        button->setStyleSheet(button->styleSheet() + QLatin1String(withoutLeftBorder));
    return button;
}

TavikButton *TavikButtonGroup::addIconButton(const QString &path)
{
    return addIconButton(IconTool::constructIcon(path, m_iconSz));
}

TavikButton *TavikButtonGroup::addIconButton(const QIcon &icon)
{
    return add(withFixedSize(new TavikButton(icon, m_iconSz, TavikButton::Toggle)));
}

QRadioButton *TavikButtonGroup::addRadioButton(const QString &text)
{
    return add(new QRadioButton(text));
}

void TavikButtonGroup::setRemSpacing(double rem)
{
    m_layout->setSpacing(LenConverter::remToPx(rem));
}

void TavikButtonGroup::setPxSpacing(int px)
{
    m_layout->setSpacing(px);
}

bool TavikButtonGroup::isUncheckable() const
{
    return m_isUncheckable;
}

void TavikButtonGroup::setIsUncheckable(bool isUncheckable)
{
    m_isUncheckable = isUncheckable;
}

QSizeF TavikButtonGroup::iconRemSz() const
{
    return m_iconSz;
}

void TavikButtonGroup::setIconRemSz(const QSizeF &size)
{
    m_iconSz = Lengths::remToPx(size);
}

void TavikButtonGroup::setIconPxSz(const QSize &size)
{
    m_iconSz = LenConverter::iniRemToPxSz(size.width(), size.height());
}

void TavikButtonGroup::setAlignment(Qt::Alignment alignment)
{
    static_cast<QLayoutItem *>(m_layout)->setAlignment(alignment);
}

int TavikButtonGroup::checkedId()
{
    return m_group->checkedId();
}

void TavikButtonGroup::setCheckedId(int id)
{
    if (QAbstractButton *button = m_group->button(id))
        button->setChecked(true);
}

bool TavikButtonGroup::isNoButtonChecked()
{
    const QList<QAbstractButton *> buttons = m_group->buttons();
    return std::none_of(buttons.begin(), buttons.end(),
                        [](const QAbstractButton *button) { return button->isChecked(); });
}

void TavikButtonGroup::paintEvent(QPaintEvent *)
{
    Sheet::paintBackground(this);
}

void TavikButtonGroup::onButtonClicked(int id)
{
    if (m_mode != Exclusive || !m_isUncheckable) {
        Q_EMIT buttonClicked(id);
        return;
    }
    if (id != m_lastCheckedId) {
        m_lastCheckedId = id;
        return;
    }
    // An exclusive group refuses to uncheck its last button.
    m_group->setExclusive(false);
    m_group->button(id)->setChecked(false);
    m_group->setExclusive(true);
    m_lastCheckedId = -1;
    Q_EMIT buttonClicked(-1);
}
