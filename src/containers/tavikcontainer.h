#ifndef TAVIK_TAVIKCONTAINER_H
#define TAVIK_TAVIKCONTAINER_H

#include <QWidget>

#include <Tavik/Direction>
#include <Tavik/RemSized>
#include <Tavik/tavik_export.h>

class QBoxLayout;
class QLayout;
class QSpacerItem;

/// A styled box: a background and a border around a row or column of widgets.
///
/// \code
/// auto *panel = new TavikContainer(Vertical, "#fdfdfd", "1", "#d3d3d3", "4", "0", this);
/// panel->setSpacing(0.5);
/// panel->addWidget(new TavikLabel(tr("Name"), panel));
/// panel->addWidget(new TavikLineEdit(panel));
/// \endcode
///
/// The look is decided once, by the constructor; afterwards only QWidget::setStyleSheet() changes it.
/// Children stand in the middle until setAlignment() says otherwise.
class TAVIK_EXPORT TavikContainer : public RemSized<QWidget>
{
    Q_OBJECT

public:
    /// A box with a look. Any direction but Vertical gives a row. Colours are written as a style sheet
    /// takes them; the lengths are pixels without a unit ("1") at every rem. Nothing of this is checked.
    TavikContainer(Direction direction, const QString &bgColor, const QString &borderWidth,
                   const QString &borderColor, const QString &padding = QStringLiteral("0"),
                   const QString &margin = QStringLiteral("0"), QWidget *parent = nullptr);

    /// A transparent box without border, padding and margin.
    explicit TavikContainer(Direction direction = Vertical, QWidget *parent = nullptr);

    /// A transparent column, as Qt Designer makes it.
    explicit TavikContainer(QWidget *parent);

    /// Sets the space between children, in rem.
    void setSpacing(double rem);

    /// Adds a widget at the end and takes it over.
    void addWidget(QWidget *widget);

    /// Takes a widget out of the row or column; it stays a child of the box.
    void removeWidget(QWidget *widget);

    /// Adds a layout at the end and takes it over.
    void addLayout(QLayout *layout);

    /// Adds a spacer at the end and takes it over. Does nothing without one.
    void addSpacerItem(QSpacerItem *item);

    /// Adds a fixed space at the end, in pixels.
    void addSpacing(int px);

    /// Adds a space at the end that takes what is left, with stretch factor 1.
    void addStretch();

    /// Sets the space between the border and the children on all four sides, in pixels.
    void setContentMargin(int px);

    /// The same as setContentMargin(0).
    void removeMargins();

    /// Sets where the children stand in a box that is larger than they are.
    void setAlignment(Qt::Alignment alignment);

    /// Sets the alignment of a layout added by addLayout().
    void setAlignment(QLayout *layout, Qt::Alignment alignment);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QBoxLayout *m_layout;
};

#endif
