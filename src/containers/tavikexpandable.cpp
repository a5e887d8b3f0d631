#include "containers/tavikexpandable.h"

#include "buttons/tavikbutton.h"
#include "buttons/taviklabel.h"
#include "containers/tavikcontainer.h"
#include "foundation/lenconverter.h"

#include <QPropertyAnimation>
#include <QVBoxLayout>

namespace {

constexpr int durationMs = 500;
constexpr double titleRemHeight = 2.33;

QIcon arrow(bool expanded)
{
    return QIcon(expanded ? QStringLiteral(":/Expandable/images/expanded.svg")
                          : QStringLiteral(":/Expandable/images/unexpanded.svg"));
}

TavikContainer *contentBox(const QString &borderWidth)
{
    auto *box = new TavikContainer(Vertical, QStringLiteral("#fdfdfd"), borderWidth,
                                   QStringLiteral("#d3d3d3"), QStringLiteral("1"), QStringLiteral("0"));
    box->setContentMargin(1);
    return box;
}

} // namespace

TavikExpandable::TavikExpandable(const QString &title, double remExpandHeight, const bool &expanded,
                                 QWidget *parent)
    : QWidget(parent)
    , m_layout(new QVBoxLayout)
    , m_animation(new QPropertyAnimation(this, "m_remExpandHeight", this))
{
    static_cast<QLayoutItem *>(m_layout)->setAlignment(Qt::AlignCenter);
    m_layout->setSpacing(0);
    m_layout->setContentsMargins(0, 0, 0, 0);
    setLayout(m_layout);
    m_animation->setDuration(durationMs);
    m_animation->setEasingCurve(QEasingCurve::OutBack); // passes the open height, and settles back
    buildTitleBar(title);
    buildContent();

    setRemExpandHeight(remExpandHeight);
    initAnimationStates();
    run(expanded);
    connect(m_expandButton, &QAbstractButton::clicked, this, &TavikExpandable::toggle);
    connect(m_animation, &QAbstractAnimation::finished, this, &TavikExpandable::animationFinished);
}

TavikExpandable::TavikExpandable(const QString &title, double remExpandHeight, QWidget *parent)
    : TavikExpandable(title, remExpandHeight, true, parent)
{
}

TavikExpandable::TavikExpandable(const QString &title, QWidget *parent)
    : TavikExpandable(title, 0.0, true, parent)
{
}

TavikExpandable::TavikExpandable(QWidget *parent)
    : TavikExpandable(QString(), parent)
{
}

TavikExpandable::~TavikExpandable()
{
    // A running animation tells that it has finished while it is deleted with the children, when there is no
    // panel any more to pass that on.
    m_animation->disconnect(this);
}

void TavikExpandable::buildTitleBar(const QString &title)
{
    m_titleLabel = new TavikLabel(title, TavikLabel::Default);
    m_titleLabel->setRemHeight(titleRemHeight);
    m_expandButton = new TavikButton(arrow(true), QSizeF(1.0, 1.0), TavikButton::Link);
    m_expandButton->setAccessibleName(tr("Open or close"));
    m_expandButton->setRemSize(titleRemHeight, titleRemHeight);

    m_titleBar = new TavikContainer(Horizontal, QStringLiteral("#ececec"), QStringLiteral("1"),
                                    QStringLiteral("#d3d3d3"), QStringLiteral("2"), QStringLiteral("0"));
    m_titleBar->removeMargins();
    m_titleBar->setRemHeight(titleRemHeight);
    m_titleBar->addSpacerItem(new QSpacerItem(LenConverter::remToPx(1.33), 0));
    m_titleBar->addWidget(m_titleLabel);
    m_titleBar->addSpacerItem(new QSpacerItem(2, 0, QSizePolicy::Expanding, QSizePolicy::Minimum));
    m_titleBar->addWidget(m_expandButton);
    m_titleBar->addSpacerItem(new QSpacerItem(LenConverter::remToPx(0.9), 0));
    m_layout->addWidget(m_titleBar);
}

void TavikExpandable::buildContent()
{
    m_contentContainer = contentBox(QStringLiteral("1"));
    m_contentContainer->setStyleSheet(m_contentContainer->styleSheet() +
                                      QLatin1String("TavikContainer{border-top-width: 0;}"));
    m_layout->addWidget(m_contentContainer);
    m_innerContainer = contentBox(QStringLiteral("0"));
    m_innerContainer->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    m_contentContainer->addWidget(m_innerContainer);
}

void TavikExpandable::setTitle(const QString &title)
{
    m_titleLabel->setText(title);
}

void TavikExpandable::setRemWidth(double rem)
{
    setFixedWidth(LenConverter::remToPx(rem));
}

void TavikExpandable::setSpacing(double rem)
{
    m_innerContainer->setSpacing(rem);
}

void TavikExpandable::addWidget(QWidget *widget)
{
    m_innerContainer->addWidget(widget);
}

void TavikExpandable::addLayout(QLayout *layout)
{
    m_innerContainer->addLayout(layout);
}

void TavikExpandable::addSpacerItem(QSpacerItem *item)
{
    m_innerContainer->addSpacerItem(item);
}

double TavikExpandable::remExpandHeight() const
{
    return m_remExpandHeight;
}

void TavikExpandable::setRemExpandHeight(double rem)
{
    m_remExpandHeight = rem;
    m_contentContainer->setRemHeight(rem);
    Q_EMIT remExpandHeightChanged();
}

void TavikExpandable::updateExpandedHeight(double rem)
{
    m_remExpandHeight = rem;
    if (m_expanded)
        setRemExpandHeight(rem);
    initAnimationStates();
}

void TavikExpandable::initAnimationStates()
{
    m_animEndValue = m_remExpandHeight;
}

void TavikExpandable::expand()
{
    run(true);
}

void TavikExpandable::unexpand()
{
    run(false);
}

void TavikExpandable::onclickedExpanedRequest()
{
    m_expanded = false;
    m_expandButton->click();
}

void TavikExpandable::toggle()
{
    run(!m_expanded);
}

void TavikExpandable::run(bool expanded)
{
    m_expanded = expanded;
    m_expandButton->setIcon(arrow(expanded));
    // A running animation turns round where it stands, and start() then has no effect.
    m_animation->setDirection(expanded ? QAbstractAnimation::Forward : QAbstractAnimation::Backward);
    m_animation->setStartValue(0.0);
    m_animation->setEndValue(m_animEndValue);
    Q_EMIT animationStarted();
    m_animation->start(QAbstractAnimation::KeepWhenStopped);
}

void TavikExpandable::mousePressEvent(QMouseEvent *event)
{
    QWidget::mousePressEvent(event);
    if (m_titleBar->underMouse())
        m_expandButton->click();
}

void TavikExpandable::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
}
