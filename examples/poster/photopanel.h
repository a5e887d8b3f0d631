#ifndef POSTER_PHOTOPANEL_H
#define POSTER_PHOTOPANEL_H

#include "panel.h"

class QListWidgetItem;
class TavikColorButton;
class TavikImageList;
class TavikRadioButton;

/// The choice of the photograph, or of a plain colour in its place.
class PhotoPanel : public Panel
{
    Q_OBJECT

public:
    explicit PhotoPanel(Poster *poster, QWidget *parent = nullptr);

    /// Adds files to the list, and chooses the last one that is an image. Returns what is wrong with the
    /// others, empty if nothing is.
    QString addPhotographs(const QStringList &files);

    /// Shows the colour in place of a photograph.
    TavikColorButton *groundButton() const { return m_ground; }

Q_SIGNALS:
    /// The user wants to choose files to add.
    void filesWanted();

protected:
    void follow(const PosterSettings &settings) override;
    void showEvent(QShowEvent *event) override;

private:
    void buildList();
    QListWidgetItem *tile(const QString &name) const;
    QListWidgetItem *addTile(const Photograph &photograph);
    void choose(const QString &name);
    void read();

    TavikImageList *m_list;
    TavikRadioButton *m_photograph;
    TavikRadioButton *m_plain;
    TavikColorButton *m_ground;
};

#endif
