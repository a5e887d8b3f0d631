#ifndef TAVIK_SAMPLING_P_H
#define TAVIK_SAMPLING_P_H

#include <QObject>
#include <QPointer>

class Screenshot;

/// The runs of a popup's sampler, one at a time.
class Sampling : public QObject
{
    Q_OBJECT

public:
    /// Starts a run in place of the one before, which may be in the middle of its own signal. Its window closes
    /// the popup as it shows itself, while sampler() still is that of the run before.
    void start();

    /// The sampler that runs, or was left by Escape; null when there is none, or the application, among whose
    /// windows it is, has deleted it.
    Screenshot *sampler() const;

    /// Deletes the sampler.
    void stop();

    /// Forgets the sampler, unless it is that of another run by now.
    void end(const QPointer<Screenshot> &finished);

Q_SIGNALS:
    /// A run has started, and sampler() is its window.
    void started(Screenshot *sampler);

private:
    QPointer<Screenshot> m_sampler;
};

#endif
