#ifndef POSTER_GRADIENTPANEL_H
#define POSTER_GRADIENTPANEL_H

#include "panel.h"

class TavikCheckBox;
class TavikDial;
class TavikGradientBar;
class TavikLineEdit;
class TavikSlider;
class TavikSpinbox;

/// The gradient over the photograph: colours, direction, opacity, and its text to copy.
class GradientPanel : public Panel
{
    Q_OBJECT

public:
    explicit GradientPanel(Poster *poster, QWidget *parent = nullptr);

    /// The colours of the gradient.
    TavikGradientBar *bar() const { return m_bar; }

protected:
    void follow(const PosterSettings &settings) override;

private:
    void buildRows();
    void addText(const QString &name, TavikLineEdit *field);
    void connectControls();

    TavikCheckBox *m_shown;
    TavikGradientBar *m_bar;
    TavikDial *m_dial;
    TavikSpinbox *m_angle;
    TavikSlider *m_slider;
    TavikSpinbox *m_opacity;
    TavikLineEdit *m_styleSheet;
    TavikLineEdit *m_css;
};

#endif
