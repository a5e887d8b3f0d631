#include "benches.h"
#include "comparison.h"

#include <Tavik/Tavik>

#include <QApplication>
#include <QListView>
#include <QScrollBar>

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

/// A control's own sheet with the stock class's name in its selectors.
template <class Stock>
QString stockSheet(const QWidget &ours)
{
    QString sheet = ours.styleSheet();
    return sheet.replace(QLatin1String(ours.metaObject()->className()),
                         QLatin1String(Stock::staticMetaObject.className()));
}

/// Both sides are made with the arguments and a parent; `prepare` gives the stock one what ours has
/// besides.
template <class Ours, class Stock, class Prepare, class... Arguments>
void addPair(const std::string &name, double bound, Prepare prepare, Arguments... arguments)
{
    const QString sheet = stockSheet<Stock>(Ours(arguments..., nullptr));
    compare("500 " + name, bound, windowOf([=](QWidget *window) { return new Ours(arguments..., window); }),
            windowOf([=](QWidget *window) {
                auto *stock = new Stock(arguments..., window);
                prepare(stock);
                stock->setStyleSheet(sheet);
                return stock;
            }));
}

} // namespace

void registerControls()
{
    const QString text = QStringLiteral("Text");
    const QString barSheet = TavikScrollArea().verticalScrollBar()->styleSheet();
    const QString listBarSheet = TavikImageList().verticalScrollBar()->styleSheet();
    const QString viewSheet = TavikComboBox().view()->styleSheet();
    const auto asItIs = [](QWidget *) {};

    addPair<TavikButton, QPushButton>("push buttons", 0.9, asItIs, text);
    addPair<TavikSlider, QSlider>("sliders", 0.9,
                                  [](QSlider *slider) { slider->setOrientation(Qt::Horizontal); });
    addPair<TavikSpinbox, QSpinBox>("spin boxes", 0.9,
                                    [](QSpinBox *box) { box->setAlignment(Qt::AlignHCenter); });
    addPair<TavikDoubleSpinbox, QDoubleSpinBox>(
        "double spin boxes", 0.9, [](QDoubleSpinBox *box) { box->setAlignment(Qt::AlignHCenter); });
    addPair<TavikLabel, QLabel>("labels", 0.95, asItIs, text);
    addPair<TavikLineEdit, QLineEdit>("line edits", 0.95, asItIs, text);
    addPair<TavikCheckBox, QCheckBox>("check boxes", 1.0, asItIs, text);
    addPair<TavikRadioButton, QRadioButton>("radio buttons", 1.0, asItIs, text);
    addPair<TavikComboBox, QComboBox>("combo boxes", 1.1, [=](QComboBox *box) {
        box->setView(new QListView);
        box->view()->setStyleSheet(viewSheet);
        box->view()->verticalScrollBar()->setStyleSheet(barSheet);
    });
    addPair<TavikScrollArea, QScrollArea>("scroll areas", 1.1, [=](QScrollArea *area) {
        area->verticalScrollBar()->setStyleSheet(barSheet);
        area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    });
    addPair<TavikImageList, QListWidget>("image lists", 1.1, [=](QListWidget *list) {
        list->verticalScrollBar()->setStyleSheet(listBarSheet);
        list->setViewMode(QListView::IconMode);
        list->setMovement(QListView::Static);
        list->setResizeMode(QListView::Adjust);
    });
}
