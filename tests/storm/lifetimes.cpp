#include "actions.h"
#include "busy.h"
#include "finding.h"
#include "stage.h"
#include "wild.h"

#include <Tavik/Tavik>

#include <QCoreApplication>

namespace {

QString targetText(int slot, const QString &arguments = {})
{
    return QLatin1String(Stage::className(slot)) + QLatin1Char(' ') + arguments;
}

Deed destroy(Random &random)
{
    const int slot = random.below(Stage::slotCount());
    const bool later = random.oneIn(2);
    return {targetText(slot, QLatin1String(later ? "later" : "at once")), [=](Stage &stage) {
                QWidget *control = stage.at(slot);
                if (later)
                    control->deleteLater();
                else
                    Stage::destroy(control);
            }};
}

// ---- Other constructors than the plain ones ----

struct Construction
{
    QString arguments;
    std::function<QWidget *(QWidget *parent)> make;
};

struct Constructor
{
    const char *className;
    std::function<Construction(Random &)> draw;
};

/// A constructor by the types of its arguments; the parent comes last.
template <class Class, class... Arguments>
Constructor constructor()
{
    const auto draw = [](Random &random) {
        const std::tuple<Wild::Drawn<Arguments>...> drawn{Wild::draw<Arguments>(random)...};
        const auto told = [](const auto &...argument) {
            return QStringList{argument.text...}.join(QLatin1String(", "));
        };
        const auto make = [=](QWidget *parent) -> QWidget * {
            return std::apply([&](const auto &...argument) { return new Class(argument.value..., parent); },
                              drawn);
        };
        return Construction{std::apply(told, drawn), make};
    };
    return {Class::staticMetaObject.className(), draw};
}

/// A constructor from a width and a height in pixels, and more. They stay small, as the control keeps pictures
/// of that size.
template <class Class, class... More>
Constructor pixelConstructor(More... more)
{
    const auto draw = [=](Random &random) {
        const int width = Wild::pixels(random);
        const int height = Wild::pixels(random);
        const auto make = [=](QWidget *parent) -> QWidget * {
            return new Class(width, height, more..., parent);
        };
        return Construction{QStringLiteral("%1, %2").arg(width).arg(height), make};
    };
    return {Class::staticMetaObject.className(), draw};
}

Constructor imageButton()
{
    const auto draw = [](Random &random) {
        const auto path = Wild::draw<QString>(random);
        const auto size = Wild::draw<QSize>(random);
        const bool hasLabel = !random.oneIn(4);
        const auto make = [=](QWidget *parent) -> QWidget * {
            return new TavikButton(path.value, size.value, hasLabel ? new TavikLabel : nullptr, parent);
        };
        return Construction{path.text + size.text + QLatin1String(hasLabel ? " label" : ""), make};
    };
    return {"TavikButton", draw};
}

Constructor spinbox()
{
    const auto draw = [](Random &random) {
        const auto first = Wild::draw<int>(random);
        const auto last = Wild::draw<int>(random);
        const auto step = Wild::draw<int>(random);
        const auto rem = Wild::draw<double>(random);
        const auto make = [=](QWidget *parent) -> QWidget * {
            return new TavikSpinbox(first.value, last.value, step.value, parent, true, rem.value);
        };
        return Construction{QStringList{first.text, last.text, step.text, rem.text}.join(QLatin1Char(' ')),
                            make};
    };
    return {"TavikSpinbox", draw};
}

const std::vector<Constructor> &constructors()
{
    static const std::vector<Constructor> table = {
        constructor<TavikLabel, QString, TavikLabel::Type>(),
        constructor<TavikButton, QString, TavikButton::Type>(),
        constructor<TavikButton, QIcon, QSizeF, QString, TavikButton::Type>(),
        constructor<TavikButton, QIcon, QSize, TavikButton::Type>(),
        imageButton(),
        constructor<TavikButtonGroup, Direction, double, QSizeF, TavikButtonGroup::Mode, double>(),
        constructor<TavikButtonGroup, Direction, int, QSize, TavikButtonGroup::Mode, int>(),
        constructor<TavikCheckBox, QString>(),
        constructor<TavikRadioButton, QString>(),
        constructor<TavikLineEdit, QString, TavikLineEdit::Type, Qt::Alignment>(),
        constructor<TavikLineEdit, QString, TavikLineEdit::Type, Qt::Alignment>(), // six types
        spinbox(),
        constructor<TavikDoubleSpinbox, double, double, double>(),
        constructor<TavikComboBox, TavikComboBox::Type>(),
        pixelConstructor<TavikSlider>(),
        constructor<TavikSlider, double, int>(),
        constructor<TavikContainer, Direction, QString, QString, QString, QString, QString>(),
        constructor<TavikExpandable, QString, double, bool>(),
        constructor<TavikScrollArea, QString, QString, QString>(),
        constructor<TavikColorButton, QColor>(),
        pixelConstructor<TavikColorPicker>(),
        pixelConstructor<TavikColorSilder>(TavikColorSilder::Alpha),
        pixelConstructor<TavikColorSilder>(TavikColorSilder::Type(7)),
        pixelConstructor<TavikColorWell>(),
        pixelConstructor<TavikGradientBar>(),
        constructor<TavikGradientBar, double, double>(),
        constructor<TavikColorPopup, QColor>(),
    };
    return table;
}

Deed construct(Random &random)
{
    const Constructor &constructor = random.pick(constructors());
    const Construction construction = constructor.draw(random);
    const QString text =
        QStringLiteral("%1(%2)").arg(QLatin1String(constructor.className), construction.arguments);
    return {text, [=](Stage &stage) {
                stage.replace(Stage::slotOf(constructor.className), construction.make(stage.window()));
            }};
}

// ---- One inside another ----

void putIntoScrollArea(Stage &stage, QWidget *control)
{
    auto *area = stage.control<TavikScrollArea>();
    if (QWidget *former = area->takeWidget()) // it would be deleted at once
        former->setParent(stage.window());
    area->setWidget(control);
}

/// Moves a control into a container, a panel or a scroll area, with which it goes from then on; or back.
Deed nest(Random &random)
{
    const int slot = random.below(Stage::popupSlots().front());
    const int place = random.below(4);
    return {targetText(slot, QString::number(place)), [=](Stage &stage) {
                QWidget *control = stage.at(slot);
                QWidget *const homes[] = {stage.control<TavikContainer>(), stage.control<TavikExpandable>(),
                                          stage.control<TavikScrollArea>()};
                if (place == 3) {
                    control->setParent(stage.window());
                    control->show();
                    return;
                }
                if (control == homes[place] || control->isAncestorOf(homes[place]))
                    return;
                if (place == 0)
                    static_cast<TavikContainer *>(homes[0])->addWidget(control);
                else if (place == 1)
                    static_cast<TavikExpandable *>(homes[1])->addWidget(control);
                else
                    putIntoScrollArea(stage, control);
            }};
}

// ---- In the middle of a signal ----

struct Signal
{
    const char *className;
    const char *name;
    Busy::Survival survival;
    std::function<QMetaObject::Connection(QWidget *, QObject *, std::function<void()>)> connect;
};

template <class Class, class Owner, class... Arguments>
Signal signal(const char *name, void (Owner::*member)(Arguments...),
              Busy::Survival survival = Busy::Buttons)
{
    return {Class::staticMetaObject.className(), name, survival,
            [member](QWidget *control, QObject *context, const std::function<void()> &slot) {
                // The arguments are copied, because a receiver may read them.
                return QObject::connect(static_cast<Class *>(control), member, context,
                                        [slot](std::decay_t<Arguments>...) { slot(); });
            }};
}

#define SIGNAL_OF(Class, member) signal<Class>(#member, &Class::member)
#define SIGNAL_AS(Class, member, ...) signal<Class>(#member, qOverload<__VA_ARGS__>(&Class::member))

const std::vector<Signal> &signalTable()
{
    static const std::vector<Signal> table = {
        SIGNAL_OF(TavikButton, pressed),
        SIGNAL_OF(TavikButton, released),
        SIGNAL_OF(TavikButton, clicked),
        signal<TavikButton>("toggled", &TavikButton::toggled, Busy::Nothing),
        SIGNAL_OF(TavikButtonGroup, buttonClicked),
        SIGNAL_OF(TavikCheckBox, toggled),
        SIGNAL_OF(TavikRadioButton, toggled),
        SIGNAL_OF(TavikLineEdit, textChanged),
        SIGNAL_OF(TavikLineEdit, editingFinished),
        SIGNAL_AS(TavikSpinbox, valueChanged, int),
        SIGNAL_AS(TavikDoubleSpinbox, valueChanged, double),
        SIGNAL_AS(TavikComboBox, currentIndexChanged, int),
        SIGNAL_OF(TavikFontFamilyComboBox, editTextChanged),
        SIGNAL_OF(TavikSlider, valueChanged),
        SIGNAL_OF(TavikDial, valueChanged),
        SIGNAL_OF(TavikExpandable, remExpandHeightChanged),
        SIGNAL_OF(TavikExpandable, animationStarted),
        SIGNAL_OF(TavikExpandable, animationFinished),
        SIGNAL_OF(TavikImageList, itemSelectionChanged),
        SIGNAL_OF(TavikColorButton, clicked),
        SIGNAL_OF(TavikColorButton, showPopup),
        SIGNAL_OF(TavikColorButton, colorChanged),
        SIGNAL_OF(TavikColorPicker, colorChanged),
        SIGNAL_OF(TavikColorSilder, valueChanged),
        SIGNAL_OF(TavikColorWell, colorSelected),
        SIGNAL_OF(TavikColorWell, addColorRequested),
        SIGNAL_OF(TavikGradientBar, selectedStartColor),
        SIGNAL_OF(TavikGradientBar, selectedEndColor),
        SIGNAL_OF(TavikGradientBar, colorPopupRequest),
        SIGNAL_OF(TavikColorPopup, colorChanged),
    };
    return table;
}

/// The popup tells of its hiding: not the time for just any step, see Busy::isPopupHiding().
const Signal &hiding()
{
    static const Signal hiding = SIGNAL_OF(TavikColorPopup, colorPopupHide);
    return hiding;
}

Deed deedWithin(const Signal &signal, Random &random)
{
    if (&signal == &hiding())
        return Actions::sampling(random);
    return random.oneIn(2) ? Actions::set(random, signal.className) : Actions::any(random);
}

/// Waits for a signal, and does another step in the middle of it, once: half of the time to the same control.
Deed trap(Random &random)
{
    const Signal &signal = random.oneIn(20) ? hiding() : random.pick(signalTable());
    const Deed inner = deedWithin(signal, random);
    const QString text = QStringLiteral("%1::%2 does %3")
                             .arg(QLatin1String(signal.className), QLatin1String(signal.name), inner.text);
    return {text, [=](Stage &stage) {
                const QPointer<QWidget> control = stage.at(Stage::slotOf(signal.className));
                const auto connection = std::make_shared<QMetaObject::Connection>();
                const bool canHide = &signal == &hiding();
                *connection = signal.connect(control, stage.wires(), [=, &stage] {
                    if (Busy::isPopupHiding() && !canHide)
                        return;
                    QObject::disconnect(*connection);
                    if (!control)
                        Finding::end(QStringLiteral("A control that is being destroyed sends a signal"));
                    const Busy busy(control, signal.survival);
                    inner.act(stage);
                });
            }};
}

/// Not in the middle of a signal: there the toolkit may then delete what it still needs.
Deed processEvents(Random &)
{
    return {{}, [](Stage &) {
                if (!Busy::isAnything())
                    QCoreApplication::processEvents();
            }};
}

} // namespace

const std::vector<Action> &Actions::lifetimes()
{
    static const std::vector<Action> actions = {
        {"destroy", 8, destroy}, {"construct", 10, construct},         {"nest", 5, nest},
        {"trap", 45, trap},      {"processEvents", 20, processEvents},
    };
    return actions;
}
