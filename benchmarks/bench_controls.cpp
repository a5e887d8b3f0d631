#include "bench_controls.h"

#include "comparison.h"

#include <Tavik/TavikButton>
#include <Tavik/TavikLabel>

#include <QApplication>

namespace {

constexpr int count = 500;

/// Makes the window's children, each with its parent, then shows the window. Deleting it is not measured.
template <class MakeChild>
Work windowOf(MakeChild makeChild)
{
    return [makeChild] {
        auto *window = new QWidget;
        for (int i = 0; i < count; ++i)
            makeChild(window)->move(i % 20 * 40, i / 20 * 20);
        window->show();
        QCoreApplication::processEvents();
        return [window] { delete window; };
    };
}

/// Our sheet with the stock class's name in its selectors.
template <class Ours, class Stock>
QString stockSheet()
{
    QString sheet = Ours().styleSheet();
    return sheet.replace(QLatin1String(Ours::staticMetaObject.className()),
                         QLatin1String(Stock::staticMetaObject.className()));
}

template <class Ours, class Stock>
void compareTextControls(const char *name, double bound)
{
    const QString text = QStringLiteral("Text");
    const QString sheet = stockSheet<Ours, Stock>();
    compare(name, bound, windowOf([text](QWidget *window) { return new Ours(text, window); }),
            windowOf([text, sheet](QWidget *window) {
                auto *stock = new Stock(text, window);
                stock->setStyleSheet(sheet);
                return stock;
            }));
}

} // namespace

void registerControls()
{
    compareTextControls<TavikButton, QPushButton>("500 push buttons made and shown", 0.9);
    compareTextControls<TavikLabel, QLabel>("500 labels made and shown", 0.95);
}
