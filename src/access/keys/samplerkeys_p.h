#ifndef TAVIK_SAMPLERKEYS_P_H
#define TAVIK_SAMPLERKEYS_P_H

#include <QObject>
#include <QPoint>

class QKeyEvent;
class Screenshot;

/// Moves the sampler's pointer by arrow keys, one pixel or with Shift ten, and picks with Return or Space.
class SamplerKeys : public QObject
{
    Q_OBJECT

public:
    explicit SamplerKeys(Screenshot *sampler);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Screenshot *sampler() const;
    bool press(const QKeyEvent &key);
    bool moveBy(int right, int down, bool isFar);

    QPoint m_pos; // in the sampler's window
};

#endif
