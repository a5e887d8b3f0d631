#include "benches.h"
#include "comparison.h"

#include <Tavik/Tavik>

#include <QApplication>
#include <QLabel>
#include <QPainter>
#include <QPropertyAnimation>
#include <QTemporaryDir>
#include <QVBoxLayout>

#include <malloc.h>

#include <memory>
#include <vector>

namespace {

constexpr int controls = 50;
constexpr int photographs = 20;
const QSize thumbnail(200, 150);

/// A settings form of five columns.
QGridLayout *gridOf(const std::vector<QWidget *> &widgets)
{
    auto *grid = new QGridLayout;
    grid->setSpacing(2);
    for (int i = 0; i < int(widgets.size()); ++i)
        grid->addWidget(widgets[std::size_t(i)], i / 5, i % 5);
    return grid;
}

std::unique_ptr<TavikExpandable> ourPanel()
{
    auto panel = std::make_unique<TavikExpandable>(QStringLiteral("Panel"), 24.0, nullptr);
    std::vector<QWidget *> buttons;
    for (int i = 0; i < controls; ++i)
        buttons.push_back(new TavikButton(QStringLiteral("Button"), panel.get()));
    panel->addLayout(gridOf(buttons));
    panel->findChild<QPropertyAnimation *>()->setCurrentTime(500);
    return panel;
}

/// A stock widget with our widget's sheet, and its fixed height if it has one.
template <class Stock>
Stock *dressed(Stock *stock, const QWidget *ours, const char *selector)
{
    QString sheet = ours->styleSheet();
    stock->setStyleSheet(
        sheet.replace(QLatin1String(ours->metaObject()->className()), QLatin1String(selector)));
    if (ours->minimumHeight() > 0)
        stock->setFixedHeight(ours->minimumHeight());
    return stock;
}

/// The same for our container: a plain widget needs a word to paint its sheet's background.
QWidget *plainBox(const QWidget *ours)
{
    auto *box = dressed(new QWidget, ours, ".QWidget");
    box->setAttribute(Qt::WA_StyledBackground);
    return box;
}

QBoxLayout *copyOf(const QLayout *ours, QBoxLayout::Direction direction)
{
    auto *box = new QBoxLayout(direction);
    static_cast<QLayoutItem *>(box)->setAlignment(static_cast<const QLayoutItem *>(ours)->alignment());
    box->setContentsMargins(ours->contentsMargins());
    box->setSpacing(ours->spacing());
    return box;
}

struct StockPanel
{
    std::unique_ptr<QWidget> widget;
    QWidget *content;
};

/// The same tree as ourPanel(), of stock widgets.
StockPanel stockPanel()
{
    const auto ours = ourPanel();
    const QWidget *ourBar = ours->layout()->itemAt(0)->widget();
    const QWidget *ourContent = ours->layout()->itemAt(1)->widget();
    const QWidget *ourInner = ourContent->layout()->itemAt(0)->widget();

    StockPanel panel{std::make_unique<QWidget>(), plainBox(ourContent)};
    auto *column = copyOf(ours->layout(), QBoxLayout::TopToBottom);
    panel.widget->setLayout(column);
    auto *bar = plainBox(ourBar);
    auto *row = copyOf(ourBar->layout(), QBoxLayout::LeftToRight);
    bar->setLayout(row);
    row->addSpacing(LenConverter::remToPx(1.33));
    row->addWidget(dressed(new QLabel(QStringLiteral("Panel")), ours->findChild<TavikLabel *>(), "QLabel"));
    row->addStretch();
    const auto *ourArrow = qobject_cast<TavikButton *>(ourBar->layout()->itemAt(3)->widget());
    auto *arrow = dressed(new QPushButton(ourArrow->icon(), QString()), ourArrow, "QPushButton");
    arrow->setIconSize(ourArrow->iconSize());
    arrow->setFixedSize(ourArrow->size());
    row->addWidget(arrow);
    row->addSpacing(LenConverter::remToPx(0.9));
    column->addWidget(bar);

    panel.content->setLayout(copyOf(ourContent->layout(), QBoxLayout::TopToBottom));
    column->addWidget(panel.content);
    auto *inner = plainBox(ourInner);
    auto *innerBox = copyOf(ourInner->layout(), QBoxLayout::TopToBottom);
    inner->setLayout(innerBox);
    panel.content->layout()->addWidget(inner);
    const auto *ourButton = ourInner->findChild<TavikButton *>();
    std::vector<QWidget *> buttons;
    for (int i = 0; i < controls; ++i)
        buttons.push_back(dressed(new QPushButton(QStringLiteral("Button")), ourButton, "QPushButton"));
    innerBox->addLayout(gridOf(buttons));
    return panel;
}

/// A step of a run: another height, laid out and painted.
template <class SetHeight>
Work step(QWidget *panel, SetHeight setHeight)
{
    auto height = std::make_shared<int>(0);
    return [=] {
        *height = (*height + 7) % 240;
        setHeight(*height);
        QCoreApplication::sendPostedEvents();
        panel->repaint();
        return [] {};
    };
}

void registerExpandable()
{
    const std::shared_ptr<TavikExpandable> ours = ourPanel();
    const auto stock = std::make_shared<StockPanel>(stockPanel());
    for (QWidget *panel : {static_cast<QWidget *>(ours.get()), stock->widget.get()}) {
        panel->resize(500, 340);
        panel->show();
    }
    QCoreApplication::processEvents(); // a window that was not exposed yet would not be painted
    compare("a step of an expandable with 50 controls", 1.1,
            step(ours.get(), [ours](int px) { ours->setRemExpandHeight(LenConverter::pxToRem(px)); }),
            step(stock->widget.get(), [stock](int px) { stock->content->setFixedHeight(px); }));
}

/// A picture with detail everywhere, as a camera makes it.
QString photograph(const QTemporaryDir &directory, int number)
{
    QImage image(4000, 3000, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            line[x] = qRgb((x * number + y) / 16, (x + y * 3) / 24 + x * y % 13, (x ^ y) / 16);
    }
    const QString path = directory.filePath(QStringLiteral("%1.jpg").arg(number));
    image.save(path, nullptr, 85);
    return path;
}

void registerImages()
{
    static const QTemporaryDir directory;
    QStringList files;
    for (int i = 0; i < photographs; ++i)
        files.append(photograph(directory, i % 4 + 1));

    const auto newList = [] {
        auto *list = new TavikImageList;
        list->setIconSize(thumbnail);
        return list;
    };
    const auto add = [files, newList] {
        auto *list = newList();
        for (const QString &file : files)
            list->addImage(file);
        return [list] { delete list; };
    };
    const auto decode = [files] {
        auto *pixmaps = new std::vector<QPixmap>;
        for (const QString &file : files) {
            const QImage image(file);
            pixmaps->push_back(QPixmap::fromImage(
                image.scaled(thumbnail, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)));
        }
        return [pixmaps] { delete pixmaps; };
    };
    compare("20 photographs of 4000x3000 added to a list", 1.05, add, decode, 5);

    const auto heapKb = [] {
        const struct mallinfo2 info = mallinfo2();
        return double(info.uordblks + info.hblkhd) / 1024;
    };
    const auto growth = [heapKb](const Work &work) {
        work()(); // what is only allocated once
        const double before = heapKb();
        const auto cleanUp = work();
        const double after = heapKb();
        cleanUp();
        return after - before;
    };
    compareFigures(
        "memory after it, against the pixmaps (KiB)", 1.1, [=] { return growth(add); },
        [=] { return growth(decode); });
}

} // namespace

void registerContainers()
{
    registerExpandable();
    registerImages();
}
