// What the toolkit does not survive with its own widgets alone: tavik-toolkit-faults FAULT. All but the last one
// crash, under the sanitizers always, openList with Qt 6 alone; the storm leaves them out, see busy.cpp. It runs by
// hand, because a crash that another version of the toolkit does not have is no fault of ours.

#include <QApplication>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include <map>

namespace {

/// A window with a field that has the focus, and something that goes when the field was left.
struct Form
{
    Form()
    {
        window.show();
        QApplication::setActiveWindow(&window);
        type();
        QObject::connect(&edit, &QLineEdit::editingFinished, &window, [this] { delete victim; });
    }

    void type()
    {
        edit.setFocus();
        QTest::keyClick(&edit, Qt::Key_X);
    }

    QWidget window;
    QLineEdit edit{&window};
    QWidget *victim = nullptr;
};

/// What was to take the focus goes.
void nextFocus()
{
    Form form;
    form.victim = new QPushButton(&form.window);
    form.victim->show();
    form.victim->setFocus();
}

/// The window that was to be the active one goes.
void nextWindow()
{
    Form form;
    form.victim = new QWidget;
    form.victim->show();
    QTest::qWait(100);
}

/// A popup goes that is being closed, over another one that then takes the focus.
void closingPopup()
{
    Form form;
    QFrame lower(&form.window, Qt::Popup);
    QPushButton button(&lower);
    lower.show();
    button.setFocus();
    form.victim = new QFrame(&form.window, Qt::Popup);
    form.victim->show();
    form.type();
    form.victim->close();
}

/// A button that is held down goes where it loses the focus.
void heldButton()
{
    Form form;
    auto *button = new QPushButton(&form.window);
    button->show();
    button->setFocus();
    QObject::connect(button, &QPushButton::released, [=] { delete button; });
    QTest::keyPress(button, Qt::Key_Space);
    form.edit.setFocus();
}

/// A button that is held down goes where it is disabled.
void disabledButton()
{
    auto *button = new QPushButton;
    button->setDown(true);
    QObject::connect(button, &QPushButton::released, [=] { delete button; });
    button->setEnabled(false);
}

/// A child goes that was to be shown, or to be hidden, after its sibling.
template <QEvent::Type type>
void nextSibling()
{
    struct Sibling : QWidget
    {
        using QWidget::QWidget;
        bool event(QEvent *event) override
        {
            if (event->type() == type)
                delete next;
            return QWidget::event(event);
        }
        QWidget *next = nullptr;
    };
    QWidget window;
    auto *sibling = new Sibling(&window);
    sibling->next = new QWidget(&window);
    window.show();
    window.hide();
}

/// A panel goes in which a list has dropped down: Qt 6 gives the focus back to a button between its children.
void openList()
{
    QWidget window;
    auto *panel = new QWidget(&window);
    auto *box = new QComboBox(panel);
    box->addItem(QStringLiteral("one"));
    auto *button = new QRadioButton(panel);
    window.show();
    QApplication::setActiveWindow(&window);
    button->setFocus();
    box->showPopup();
    delete panel;
}

/// A double click into what an input method has not finished puts the cursor behind the text; the next key warns.
void cursorBehindText()
{
    QDoubleSpinBox box;
    box.resize(200, 30);
    box.show();
    auto *edit = box.findChild<QLineEdit *>();
    QInputMethodEvent typed(QStringLiteral("xy"), {});
    typed.setCommitString(QStringLiteral("what the box does not take"));
    QApplication::sendEvent(edit, &typed);
    QTest::mouseDClick(edit, Qt::LeftButton, {}, {100, 10});
    QTest::keyClick(&box, Qt::Key_Home, Qt::ShiftModifier);
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication app(argc, argv);
    const std::map<QByteArray, void (*)()> faults = {
        {"nextFocus", nextFocus},
        {"nextWindow", nextWindow},
        {"closingPopup", closingPopup},
        {"heldButton", heldButton},
        {"disabledButton", disabledButton},
        {"nextShown", nextSibling<QEvent::Show>},
        {"nextHidden", nextSibling<QEvent::Hide>},
        {"openList", openList},
        {"cursorBehindText", cursorBehindText},
    };
    const auto fault = faults.find(argc > 1 ? argv[1] : "");
    if (fault == faults.end())
        qFatal("Usage: tavik-toolkit-faults FAULT, see %s", __FILE__);
    fault->second();
    return 0;
}
