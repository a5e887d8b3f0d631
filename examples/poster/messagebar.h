#ifndef POSTER_MESSAGEBAR_H
#define POSTER_MESSAGEBAR_H

#include <Tavik/TavikContainer>

class TavikLabel;

/// A line that tells what has been done or what went wrong, until it is closed; hidden while there is nothing.
class MessageBar : public TavikContainer
{
    Q_OBJECT

public:
    explicit MessageBar(QWidget *parent = nullptr);

    /// Tells something good, or takes the last message away if the text is empty.
    void tell(const QString &text);

    /// Tells what went wrong.
    void complain(const QString &text);

    /// What it tells now, empty if nothing.
    QString text() const;

private:
    void display(const QString &text, const QString &color);

    TavikLabel *m_label;
};

#endif
