#ifndef GALLERY_SIGNALLOG_H
#define GALLERY_SIGNALLOG_H

#include <QColor>
#include <QStringList>
#include <QWidget>

class CodeLabel;

/// The last signals of several controls, the newest on top, with a button that clears them.
class SignalLog : public QWidget
{
    Q_OBJECT

public:
    explicit SignalLog(QWidget *parent = nullptr);

    /// Adds a line for a signal and its value.
    void tell(const QString &sender, const QString &signal, const QString &value);

    /// Adds a line for each emission of a signal that carries a colour alone.
    template <class Sender, class Emitter, class Value>
    void follow(const Sender *sender, void (Emitter::*signal)(Value), const QString &name,
                const QString &signalName)
    {
        connect(sender, signal, this,
                [=](const QColor &color) { tell(name, signalName, color.name(QColor::HexArgb)); });
    }

private:
    void show(const QStringList &lines);

    QStringList m_lines;
    CodeLabel *m_text;
};

#endif
