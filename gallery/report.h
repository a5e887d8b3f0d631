#ifndef GALLERY_REPORT_H
#define GALLERY_REPORT_H

#include <QVariant>

#include <Tavik/TavikLabel>

/// A quiet line that shows the last signal of a control with its value: "valueChanged: 40".
///
/// \code
/// auto *report = new Report;
/// report->follow(slider, &QSlider::valueChanged, QStringLiteral("valueChanged"));
/// \endcode
///
/// Its width is fixed, so that nothing around it moves; what is too long for it ends in dots.
class Report : public TavikLabel
{
    Q_OBJECT

public:
    /// A line of a width in rem that says nothing yet.
    explicit Report(double remWidth = 14, QWidget *parent = nullptr);

    /// Shows a signal and its value.
    void tell(const QString &signal, const QVariant &value = {});

    /// Shows each emission of a signal with one argument.
    template <class Sender, class Emitter, class Value>
    void follow(const Sender *sender, void (Emitter::*signal)(Value), const QString &name)
    {
        connect(sender, signal, this, [this, name](Value value) { tell(name, value); });
    }
};

#endif
