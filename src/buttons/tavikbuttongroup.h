#ifndef TAVIK_TAVIKBUTTONGROUP_H
#define TAVIK_TAVIKBUTTONGROUP_H

#include <QSize>
#include <QWidget>

#include <Tavik/Direction>
#include <Tavik/tavik_export.h>

class QBoxLayout;
class QButtonGroup;
class QIcon;
class QRadioButton;
class TavikButton;

/// A row or column of buttons that behaves as one control and reports clicks by id.
///
/// Ids count 0, 1, 2 in order of adding, across all kinds of button. With no spacing, text buttons join
/// into one segmented bar.
/// \code
/// auto *align = new TavikButtonGroup(Horizontal, this);
/// align->addTextButton(tr("Left"));
/// align->addTextButton(tr("Centre"));
/// align->addTextButton(tr("Right"));
/// align->setCheckedId(0);
/// connect(align, &TavikButtonGroup::buttonClicked, this, &Editor::setAlignmentById);
/// \endcode
///
/// With setIsUncheckable() a click on the checked button of an exclusive group leaves nothing checked. The
/// group then emits -1, and emits nothing for the clicks that only check a button.
class TAVIK_EXPORT TavikButtonGroup : public QWidget
{
    Q_OBJECT

public:
    /// How the buttons check. A value outside acts as NonExclusive on clicks, while the buttons stay
    /// exclusive.
    enum Mode : int {
        Exclusive = 0,    ///< One button is checked at a time.
        NonExclusive = 1, ///< Each button toggles alone.
    };

    /// A group with lengths in rem and no margins: font size of text buttons, fixed size of text and icon
    /// buttons (none unless both sides are above 0), spacing. A direction that is not Horizontal gives a
    /// column.
    TavikButtonGroup(Direction direction, double fontRemSz, const QSizeF &btnRemSz, Mode mode = Exclusive,
                     double remSpacing = 0, QWidget *parent = nullptr);

    /// A group with lengths in pixels, which do not grow with the rem, and the toolkit's margins. Otherwise
    /// as the form in rem.
    TavikButtonGroup(Direction direction, int fontPxSz, const QSize &btnPxSz, Mode mode = Exclusive,
                     int pxSpacing = 0, QWidget *parent = nullptr);

    /// An exclusive group of free button sizes, with 1.167 rem as font size, no spacing and no margins.
    explicit TavikButtonGroup(Direction direction = Vertical, QWidget *parent = nullptr);

    /// An exclusive column, as Qt Designer makes it.
    explicit TavikButtonGroup(QWidget *parent);

    /// Adds a text button of the look TavikButton::Toggle and returns it; the group owns it.
    ///
    /// If the spacing is 0 now, a button that is not the group's first loses its left border, so that
    /// touching buttons share one line; restyling the button brings the border back.
    TavikButton *addTextButton(const QString &text);

    /// Adds a button with the three drawings `path`.svg, `path`_hover.svg and `path`_press.svg, see
    /// IconTool::constructIcon(), and returns it; the group owns it.
    TavikButton *addIconButton(const QString &path);

    /// Adds an icon button of the look TavikButton::Toggle and returns it; the group owns it.
    TavikButton *addIconButton(const QIcon &icon);

    /// Adds a radio button of the toolkit's look and returns it; the group owns it.
    QRadioButton *addRadioButton(const QString &text);

    /// Sets the spacing, in rem. Buttons that are there keep their borders.
    void setRemSpacing(double rem);

    /// Sets the spacing, in pixels. Buttons that are there keep their borders.
    void setPxSpacing(int px);

    /// Whether a click on the checked button of an exclusive group unchecks it.
    bool isUncheckable() const;

    /// Lets a click on the checked button uncheck it, or not. Has no effect in a group that isn't
    /// Exclusive.
    ///
    /// Only clicks made while this is on are remembered: a button that was checked otherwise, by
    /// setCheckedId() too, is unchecked by the second click on it.
    void setIsUncheckable(bool isUncheckable);

    /// Icon size in pixels, in spite of the name; invalid until one is set.
    QSizeF iconRemSz() const;

    /// Sets the icon size of icon buttons added from now on, in rem.
    void setIconRemSz(const QSizeF &size);

    /// Sets the icon size of icon buttons added from now on, in design pixels.
    void setIconPxSz(const QSize &size);

    /// Sets where the buttons stand in a group that is larger than they are; the middle, at first.
    void setAlignment(Qt::Alignment alignment);

    /// Id of the checked button, -1 if none is.
    int checkedId();

    /// Checks a button, without a signal. Does nothing if no button has this id.
    void setCheckedId(int id);

    /// Whether no button is checked, as in an empty group.
    bool isNoButtonChecked();

Q_SIGNALS:
    /// A button was clicked; see setIsUncheckable() for when -1 comes.
    void buttonClicked(int id);

protected:
    void paintEvent(QPaintEvent *event) override;

private Q_SLOTS:
    void onButtonClicked(int id);

private:
    struct PixelLengths;
    TavikButtonGroup(Direction direction, const PixelLengths &lengths, Mode mode, QWidget *parent);

    template <class Button>
    Button *add(Button *button);
    TavikButton *withFixedSize(TavikButton *button) const;

    QBoxLayout *m_layout;
    Mode m_mode;
    QButtonGroup *m_group;
    QSize m_btnSz;
    QSize m_iconSz;
    int m_fontPxSz;
    int m_nextId = 0;
    bool m_isUncheckable = false;
    int m_lastCheckedId = -1;
};

#endif
