// What the screen reader's client meets: a window with controls, and an open popup through which somebody
// goes by Tab.

#include <Tavik/LenConverter>
#include <Tavik/Tavik>

#include <QApplication>
#include <QKeyEvent>
#include <QTimer>
#include <QVBoxLayout>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    app.setApplicationName(QStringLiteral("tavik-atspi-stage"));
    LenConverter::initRem();

    QWidget window;
    auto *button = new TavikColorButton(Qt::red);
    button->setAccessibleName(QStringLiteral("Fill"));
    auto *layout = new QVBoxLayout(&window);
    layout->addWidget(button);
    layout->addWidget(new TavikGradientBar);
    layout->addWidget(new TavikExpandable(QStringLiteral("Effects"), 5.0, false, nullptr));
    TavikColorPopup popup(&window);
    QObject::connect(&popup, &TavikColorPopup::colorChanged, button, &TavikColorButton::setCurrentColor);
    TavikKeyboardAccess::install(&window);

    window.show();
    popup.showColorPopup({400, 100}, Qt::red);
    QTimer tabs; // more than one round, because the client may come late
    QObject::connect(&tabs, &QTimer::timeout, &popup, [] {
        QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
        if (QWidget *focused = QApplication::focusWidget())
            QApplication::sendEvent(focused, &tab);
    });
    tabs.start(100);
    return app.exec();
}
