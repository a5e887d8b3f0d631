#include "color/sampling_p.h"

#include "color/screenshot_p.h"

void Sampling::start()
{
    auto *sampler = new Screenshot(nullptr);
    if (m_sampler)
        m_sampler->deleteLater();
    m_sampler = sampler;
    Q_EMIT started(sampler);
}

Screenshot *Sampling::sampler() const
{
    return m_sampler;
}

void Sampling::stop()
{
    delete m_sampler;
}

void Sampling::end(const QPointer<Screenshot> &finished)
{
    if (!finished || m_sampler != finished)
        return;
    m_sampler->deleteLater();
    m_sampler = nullptr;
}
