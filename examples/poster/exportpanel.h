#ifndef POSTER_EXPORTPANEL_H
#define POSTER_EXPORTPANEL_H

#include "panel.h"

#include <QVector>

class Exporter;
class QProgressBar;
class QStackedWidget;
class TavikButton;
class TavikCheckBox;
class TavikComboBox;
class TavikRadioButton;
class TavikSpinbox;

/// The poster's size, the sizes to export to, and the export's progress.
class ExportPanel : public Panel
{
    Q_OBJECT

public:
    /// Shows and cancels what an exporter does; starting it is left to who asks for the file.
    ExportPanel(Poster *poster, Exporter *exporter, QWidget *parent = nullptr);

Q_SIGNALS:
    /// The user wants to export, and has to be asked for a file.
    void exportWanted();

protected:
    void follow(const PosterSettings &settings) override;

private:
    void buildSize();
    void buildBatch();
    void buildProgress(Exporter *exporter);
    void connectControls();
    void readSize();
    void readBatch();

    TavikComboBox *m_size;
    TavikSpinbox *m_width;
    TavikSpinbox *m_height;
    TavikRadioButton *m_single;
    TavikRadioButton *m_several;
    QVector<TavikCheckBox *> m_batch; // in the order of posterSizes()
    TavikButton *m_export;
    QStackedWidget *m_steps;
};

#endif
