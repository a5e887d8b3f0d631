#ifndef TAVIK_TAVIKEXPANDABLE_H
#define TAVIK_TAVIKEXPANDABLE_H

#include <QWidget>

#include <Tavik/tavik_export.h>

class QLayout;
class QPropertyAnimation;
class QSpacerItem;
class QVBoxLayout;
class TavikButton;
class TavikContainer;
class TavikLabel;

/// A panel that opens and closes: a title row, and under it a content area whose height is animated.
///
/// \code
/// auto *effects = new TavikExpandable(tr("Effects"), 12.0, false, this);   // 12 rem high when open
/// effects->setSpacing(0.5);
/// effects->addWidget(new TavikCheckBox(tr("Shadow"), effects));
/// connect(effects, &TavikExpandable::animationFinished, this, &Panel::rememberWhatIsOpen);
/// \endcode
///
/// A press with any mouse button on the title row, or a click on its arrow, toggles the panel. While the
/// content area is too low, content with fixed sizes is cut off and other content is squeezed. A new panel
/// runs its animation once, to the state and the height that it is made with.
class TAVIK_EXPORT TavikExpandable : public QWidget
{
    Q_OBJECT
    /// Present height of the content in rem: what the animation animates.
    Q_PROPERTY(double m_remExpandHeight READ remExpandHeight WRITE setRemExpandHeight NOTIFY
                   remExpandHeightChanged)

public:
    /// A panel with a title and the height of its open content in rem, open or closed.
    explicit TavikExpandable(const QString &title, double remExpandHeight = 0.0,
                             const bool &expanded = true, QWidget *parent = nullptr);

    /// An open panel with a title and the height of its content in rem.
    TavikExpandable(const QString &title, double remExpandHeight, QWidget *parent);

    /// An open panel with a title and no content height yet: see updateExpandedHeight().
    TavikExpandable(const QString &title, QWidget *parent);

    /// An open panel without title and content height, as Qt Designer makes it: see updateExpandedHeight().
    explicit TavikExpandable(QWidget *parent = nullptr);

    ~TavikExpandable() override;

    /// Sets the title.
    void setTitle(const QString &title);

    /// Fixes the width, in rem; what is negative counts as 0.
    void setRemWidth(double rem);

    /// Sets the space between the widgets of the content, in rem.
    void setSpacing(double rem);

    /// Adds a widget to the content and takes it over.
    void addWidget(QWidget *widget);

    /// Adds a layout to the content and takes it over.
    void addLayout(QLayout *layout);

    /// Adds a spacer to the content and takes it over. Does nothing without one.
    void addSpacerItem(QSpacerItem *item);

    /// Present height of the content in rem; between 0 and somewhat above the open height while the
    /// animation runs. A closed panel tells its new open height after updateExpandedHeight().
    double remExpandHeight() const;

    /// Sets the present height of the content, in rem, and emits remExpandHeightChanged(). The animation
    /// does this at each of its steps; to change the open height, use updateExpandedHeight().
    void setRemExpandHeight(double rem);

    /// Sets the open height of the content, in rem. An open panel at rest takes it at once and emits
    /// remExpandHeightChanged(); a closed one opens to it next time.
    ///
    /// A run that is under way knows nothing of it: it goes on to the height that it was started with, and
    /// leaves the panel there. A new panel runs for its first half second. Ask for a run of your own then, and the
    /// panel opens to the new height in any case; one that is open and at rest needs none, and would play its
    /// opening again:
    /// \code
    /// panel->updateExpandedHeight(8.0);
    /// panel->expand();
    /// \endcode
    void updateExpandedHeight(double rem);

    /// Makes the present height the open height.
    void initAnimationStates();

    /// Opens the panel: emits animationStarted(), then remExpandHeightChanged() at each step, and
    /// animationFinished() at the end. Asked again, it does the same again; a closing run turns round.
    void expand();

    /// Closes the panel, with the same signals as expand().
    void unexpand();

    /// Opens the panel as a click on the arrow of a closed one does, whatever its state is.
    void onclickedExpanedRequest();

Q_SIGNALS:
    /// The content's height has changed.
    void remExpandHeightChanged();
    /// Opening or closing was asked for.
    void animationStarted();
    /// The panel is wholly open or wholly closed.
    void animationFinished();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    friend class PanelTitle;

    void buildTitleBar(const QString &title);
    void buildContent();
    void toggle();
    void run(bool expanded);

    QVBoxLayout *m_layout;
    TavikContainer *m_titleBar = nullptr;
    TavikLabel *m_titleLabel = nullptr;
    TavikButton *m_expandButton = nullptr;
    TavikContainer *m_contentContainer = nullptr;
    TavikContainer *m_innerContainer = nullptr;
    QPropertyAnimation *m_animation;
    double m_remExpandHeight = 0.0;
    double m_animEndValue = 0.0;
    bool m_expanded = true;
};

#endif
