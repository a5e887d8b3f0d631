#include "landscapes.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPainterPath>
#include <QRandomGenerator>

#include <cmath>

namespace {

enum Feature { Bare, Sea, Firs, Stars };

// Places and heights are shares of the picture's width and height, with the origin in the upper left corner.
struct Scene
{
    const char *name;
    const char *title;
    QVector<QRgb> sky; // from the zenith to the horizon
    QPointF sun;
    double sunRadius;
    QRgb sunlight;
    QRgb farRidge;
    QRgb nearRidge;
    int ridges;
    double horizon;
    double peaks; // height of the farthest ridge
    int detail;   // octaves of noise: few make dunes, many make rocks
    Feature feature;
};

const Scene scenes[] = {
    {"dawn",
     QT_TRANSLATE_NOOP("Landscapes", "Dawn"),
     {0xff35477d, 0xff8a6f9e, 0xfff2a68b, 0xffffe0b0},
     {0.66, 0.375},
     0.03,
     0xfffff0cf,
     0xffb98ea4,
     0xff1d2440,
     6,
     0.56,
     0.14,
     6,
     Bare},
    {"sea",
     QT_TRANSLATE_NOOP("Landscapes", "Evening at the sea"),
     {0xff1c2f55, 0xff6b4a7d, 0xffe0705a, 0xffffc46b},
     {0.38, 0.50},
     0.045,
     0xffffe2a0,
     0xff7a4f6d,
     0xff2a2140,
     2,
     0.57,
     0.05,
     5,
     Sea},
    {"desert",
     QT_TRANSLATE_NOOP("Landscapes", "Desert"),
     {0xff4f9cc4, 0xff93c8d2, 0xffe6e3c6, 0xfff7e6c0},
     {0.24, 0.26},
     0.03,
     0xfffff8e4,
     0xffe7b57d,
     0xff8e4220,
     5,
     0.58,
     0.08,
     2,
     Bare},
    {"forest",
     QT_TRANSLATE_NOOP("Landscapes", "Forest in the mist"),
     {0xff8fb0ac, 0xffb9cfc4, 0xffe1e8d6, 0xfff3f2df},
     {0.74, 0.24},
     0.05,
     0xfffffbe8,
     0xffa9c2b4,
     0xff142c26,
     5,
     0.48,
     0.10,
     5,
     Firs},
    {"night",
     QT_TRANSLATE_NOOP("Landscapes", "Night"),
     {0xff050a1e, 0xff0e1f45, 0xff26477a, 0xff5d7fa3},
     {0.78, 0.20},
     0.028,
     0xfff4f1df,
     0xff30507c,
     0xff04070f,
     5,
     0.64,
     0.15,
     6,
     Stars},
    {"snow",
     QT_TRANSLATE_NOOP("Landscapes", "Snow"),
     {0xff2a6bb0, 0xff6fa6d6, 0xffb9d6ea, 0xffeaf3f7},
     {0.18, 0.18},
     0.03,
     0xffffffff,
     0xffa3bfd9,
     0xfff4f9ff,
     4,
     0.50,
     0.26,
     7,
     Bare},
};

const Scene *find(const QString &name)
{
    for (const Scene &scene : scenes) {
        if (name == QLatin1String(scene.name))
            return &scene;
    }
    return nullptr;
}

QColor mixed(const QColor &from, const QColor &to, double share)
{
    const auto channel = [share](double a, double b) { return a + (b - a) * share; };
    return QColor::fromRgbF(channel(from.redF(), to.redF()), channel(from.greenF(), to.greenF()),
                            channel(from.blueF(), to.blueF()));
}

QColor withAlpha(QColor color, double alpha)
{
    color.setAlphaF(alpha);
    return color;
}

/// A number from 0 to 1 that depends on nothing but a whole number.
double hash(quint32 n)
{
    n = (n ^ 61u) ^ (n >> 16);
    n *= 9u;
    n ^= n >> 4;
    n *= 0x27d4eb2du;
    return double(n ^ (n >> 15)) / 4294967295.0;
}

/// Smooth noise around 0 along a line; each octave doubles the frequency and halves the height.
double noise(double x, int octaves, quint32 seed)
{
    double sum = 0.0;
    double height = 0.5;
    for (int octave = 0; octave < octaves; ++octave, x *= 2.0, height *= 0.5) {
        const double cell = std::floor(x);
        const double t = x - cell;
        const auto n = quint32(cell) + seed * 1013u + quint32(octave) * 7919u;
        sum += height * (hash(n) + (hash(n + 1) - hash(n)) * t * t * (3.0 - 2.0 * t) - 0.5);
    }
    return sum;
}

class LandscapePainter
{
public:
    LandscapePainter(QImage &image, const Scene &scene)
        : m_painter(&image)
        , m_scene(scene)
        , m_width(image.width())
        , m_height(image.height())
        , m_random(QRandomGenerator(quint32(scene.ridges * 97 + int(scene.feature))))
    {
        m_painter.setRenderHint(QPainter::Antialiasing);
        m_painter.setPen(Qt::NoPen);
    }

    void paint()
    {
        paintSky();
        if (m_scene.feature == Stars)
            paintStars();
        paintSun();
        for (int i = 0; i < m_scene.ridges; ++i)
            paintRidge(i);
        if (m_scene.feature == Sea)
            paintSea();
        paintCorners();
    }

private:
    QPointF sun() const { return {m_scene.sun.x() * m_width, m_scene.sun.y() * m_height}; }
    QColor horizonColor() const { return {m_scene.sky.last()}; }

    QLinearGradient skyGradient(double top, double bottom) const
    {
        QLinearGradient gradient(0, top, 0, bottom);
        for (int i = 0; i < m_scene.sky.size(); ++i)
            gradient.setColorAt(double(i) / (m_scene.sky.size() - 1), QColor(m_scene.sky.at(i)));
        return gradient;
    }

    void paintSky()
    {
        const double horizon = m_scene.horizon * m_height;
        m_painter.fillRect(QRectF(0, 0, m_width, m_height), skyGradient(0, horizon));
    }

    void paintStars()
    {
        const int count = 420;
        for (int i = 0; i < count; ++i) {
            const QPointF place(m_random.generateDouble() * m_width,
                                std::pow(m_random.generateDouble(), 1.4) * m_height * m_scene.horizon);
            const double brightness = std::pow(m_random.generateDouble(), 3.0);
            const double radius = m_height * (0.0007 + 0.0015 * brightness);
            m_painter.setBrush(withAlpha(Qt::white, 0.25 + 0.7 * brightness));
            m_painter.drawEllipse(place, radius, radius);
        }
    }

    void paintSun()
    {
        const QColor light(m_scene.sunlight);
        QRadialGradient glow(sun(), m_width * 0.42);
        // Light falls off fast at first, and then slowly.
        for (const double distance : {0.0, 0.1, 0.2, 0.35, 0.6, 1.0})
            glow.setColorAt(distance, withAlpha(light, 0.6 * std::pow(1.0 - distance, 4.0)));
        m_painter.fillRect(QRectF(0, 0, m_width, m_height), glow);
        m_painter.setBrush(light);
        const double radius = m_scene.sunRadius * m_width;
        m_painter.drawEllipse(sun(), radius, radius);
    }

    /// How near a ridge is, from 0 to 1.
    double nearness(int ridge) const
    {
        return m_scene.ridges > 1 ? double(ridge) / (m_scene.ridges - 1) : 0.0;
    }

    double ridgeTop(int ridge, double x) const
    {
        const double near = nearness(ridge);
        const double reach = m_scene.feature == Sea ? 0.0 : 0.42;
        const double base = m_scene.horizon + (near - 0.05) * reach;
        const double waves = noise((x * (1.6 + ridge * 0.55) + ridge * 17.0) * 1.8, m_scene.detail,
                                   quint32(ridge + 1) * 31u + quint32(m_scene.detail));
        return (base - m_scene.peaks * (1.0 - 0.45 * near) * (0.35 + 2.0 * waves)) * m_height;
    }

    void paintRidge(int ridge)
    {
        const double near = nearness(ridge);
        const QColor color = mixed(QColor(m_scene.farRidge), QColor(m_scene.nearRidge), near);
        QPainterPath path(QPointF(0, m_height));
        double top = m_height;
        for (double x = 0; x <= m_width + 2; x += 2) {
            const double y = ridgeTop(ridge, x / m_width);
            top = qMin(top, y);
            path.lineTo(x, y);
        }
        path.lineTo(m_width, m_height);
        // The air between two ridges makes the foot of the farther one paler.
        QLinearGradient air(0, top, 0, top + m_height * 0.38);
        air.setColorAt(0.0, color);
        air.setColorAt(1.0, mixed(color, horizonColor(), 0.55 * (1.0 - near)));
        m_painter.setBrush(air);
        m_painter.drawPath(path);
        if (m_scene.feature == Firs)
            paintFirs(ridge, color);
    }

    void paintFirs(int ridge, const QColor &color)
    {
        const double near = nearness(ridge);
        const int count = int(260 - 190 * near);
        m_painter.setBrush(color);
        for (int i = 0; i < count; ++i) {
            const double x = m_random.generateDouble();
            const double size = m_height * (0.02 + 0.13 * near * near) * (0.6 + m_random.generateDouble());
            paintFir({x * m_width, ridgeTop(ridge, x) + size * 0.1}, size);
        }
    }

    void paintFir(const QPointF &foot, double size)
    {
        const int tiers = 6;
        for (int tier = 0; tier < tiers; ++tier) {
            const double bottom = foot.y() - size * tier / (tiers + 1.0);
            const double half = size * 0.19 * (1.0 - double(tier) / tiers);
            const QPointF tip(foot.x(), bottom - size * 0.34);
            m_painter.drawPolygon(QPolygonF({{foot.x() - half, bottom}, tip, {foot.x() + half, bottom}}));
        }
    }

    void paintSea()
    {
        const double horizon = m_scene.horizon * m_height;
        const QRectF water(0, horizon, m_width, m_height - horizon);
        m_painter.fillRect(water, skyGradient(m_height * 1.1, horizon));
        QLinearGradient depth(0, horizon, 0, m_height);
        depth.setColorAt(0.0, withAlpha(QColor(m_scene.nearRidge), 0.25));
        depth.setColorAt(1.0, withAlpha(QColor(m_scene.nearRidge), 0.8));
        m_painter.fillRect(water, depth);
        for (int i = 0; i < 900; ++i)
            paintGlitter(std::pow(m_random.generateDouble(), 1.6));
    }

    /// A streak of light on the water, which begins at the horizon at 0 and ends at the beach at 1.
    void paintGlitter(double distance)
    {
        const double spread = (0.03 + 0.14 * distance) * m_width;
        const double side = (m_random.generateDouble() + m_random.generateDouble() - 1.0) * 2.0;
        const double y = (m_scene.horizon + (1.0 - m_scene.horizon) * distance) * m_height;
        const double length = (0.004 + 0.03 * distance) * m_width * m_random.generateDouble();
        const double alpha = 0.75 * (1.0 - 0.6 * distance) * (1.0 - 0.45 * std::abs(side));
        m_painter.setBrush(withAlpha(QColor(m_scene.sunlight), qMax(0.0, alpha)));
        m_painter.drawEllipse(QPointF(sun().x() + side * spread, y), length,
                              m_height * (0.0008 + 0.0024 * distance));
    }

    void paintCorners()
    {
        QRadialGradient corners(QPointF(m_width, m_height) / 2.0, std::hypot(m_width, m_height) / 2.0);
        corners.setColorAt(0.55, withAlpha(Qt::black, 0.0));
        corners.setColorAt(1.0, withAlpha(Qt::black, 0.2));
        m_painter.fillRect(QRectF(0, 0, m_width, m_height), corners);
    }

    QPainter m_painter;
    const Scene &m_scene;
    double m_width;
    double m_height;
    QRandomGenerator m_random;
};

} // namespace

QStringList Landscapes::names()
{
    QStringList names;
    for (const Scene &scene : scenes)
        names.append(QString::fromLatin1(scene.name));
    return names;
}

QString Landscapes::title(const QString &name)
{
    const Scene *scene = find(name);
    return scene ? QCoreApplication::translate("Landscapes", scene->title) : QString();
}

QImage Landscapes::paint(const QString &name, const QSize &size)
{
    const Scene *scene = find(name);
    if (!scene)
        return {};
    QImage image(size, QImage::Format_RGB32);
    LandscapePainter(image, *scene).paint();
    return image;
}
