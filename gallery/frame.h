#ifndef GALLERY_FRAME_H
#define GALLERY_FRAME_H

#include <QWidget>

class QGridLayout;
class QScrollArea;
class RemChoice;
class TavikLabel;

/// All that the window holds: navigation, header and the current page.
///
/// Built for one value of the rem; the window makes another one for another value.
class Frame : public QWidget
{
    Q_OBJECT

public:
    explicit Frame(const QString &page, QWidget *parent = nullptr);

    /// Name of the page that is shown.
    QString page() const { return m_page; }

    /// Shows a page, from its top. The name must be one of pageTable().
    void showPage(const QString &name);

    /// Shows at the lower edge what is amiss with the set-up, if anything is.
    void showProblems(const QStringList &problems);

    /// The height at which the whole page is seen, at the present width.
    int fullHeight() const;

    /// A good size for a window, in pixels.
    static QSize goodSize();

    /// The choice of the rem.
    RemChoice *remChoice() const { return m_remChoice; }

private:
    QWidget *buildHeader();

    QString m_page;
    QGridLayout *m_layout;
    TavikLabel *m_title;
    RemChoice *m_remChoice;
    QWidget *m_header;
    QScrollArea *m_scrollArea;
};

#endif
