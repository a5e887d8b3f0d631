#include "foundation/icontool.h"

QIcon IconTool::constructIcon(const QString &path, const QSize &size)
{
    QIcon icon;
    icon.addFile(path + QLatin1String(".svg"), size, QIcon::Normal, QIcon::On);
    icon.addFile(path + QLatin1String("_hover.svg"), size, QIcon::Active, QIcon::On);
    icon.addFile(path + QLatin1String("_press.svg"), size, QIcon::Selected, QIcon::On);
    return icon;
}

QImage IconTool::alphaTexture()
{
    return QImage(QStringLiteral(":/Color/images/alpha_texture.png"));
}
