#ifndef POSTER_CAPTIONPANEL_H
#define POSTER_CAPTIONPANEL_H

#include "panel.h"

class TavikButtonGroup;
class TavikCheckBox;
class TavikColorButton;
class TavikDoubleSpinbox;
class TavikFontFamilyComboBox;
class TavikLineEdit;

/// The caption: text, font, colours and place.
class CaptionPanel : public Panel
{
    Q_OBJECT

public:
    explicit CaptionPanel(Poster *poster, QWidget *parent = nullptr);

    TavikColorButton *textButton() const { return m_color; }
    TavikColorButton *shadowButton() const { return m_shadow; }

protected:
    void follow(const PosterSettings &settings) override;

private:
    void buildRows();
    void connectControls();

    TavikLineEdit *m_text;
    TavikFontFamilyComboBox *m_family;
    TavikDoubleSpinbox *m_size;
    TavikCheckBox *m_bold;
    TavikColorButton *m_color;
    TavikColorButton *m_shadow;
    TavikButtonGroup *m_column;
    TavikButtonGroup *m_row;
};

#endif
