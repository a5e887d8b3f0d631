#include "actions.h"
#include "busy.h"
#include "finding.h"
#include "stage.h"
#include "table.h"
#include "wild.h"

#include <Tavik/Tavik>

#include <QCoreApplication>

namespace {

using Wild::Pixels;

Deed destroy(Random &random)
{
    const int slot = random.below(Stage::slotCount());
    const bool later = random.oneIn(2);
    return deedTo(slot, [=](Stage &, QWidget *control) {
        if (later)
            control->deleteLater();
        else
            Stage::destroy(control);
    });
}

// ---- Other constructors than the plain ones ----

using Make = std::function<QWidget *(QWidget *parent)>;

struct Constructor
{
    const char *className;
    std::function<Make(Random &)> draw;
};

/// Makes a control from a parent and arguments of these types.
template <class Class, class... Arguments, class Function>
Constructor making(Function function)
{
    return {Class::staticMetaObject.className(), [=](Random &random) -> Make {
                // Braces, because only there the order of drawing is fixed.
                const std::tuple<Arguments...> drawn{Wild::draw<Arguments>(random)...};
                return [=](QWidget *parent) {
                    return std::apply(function, std::tuple_cat(std::tuple(parent), drawn));
                };
            }};
}

/// A constructor by the types of its arguments, of which the last ones may be given; the parent comes last.
template <class Class, class... Arguments, class... Given>
Constructor constructor(Given... given)
{
    return making<Class, Arguments...>(
        [=](QWidget *parent, const auto &...argument) { return new Class(argument..., given..., parent); });
}

const std::vector<Constructor> &constructors()
{
    static const std::vector<Constructor> table = {
        constructor<TavikLabel, QString, TavikLabel::Type>(),
        constructor<TavikButton, QString, TavikButton::Type>(),
        constructor<TavikButton, QIcon, QSizeF, QString, TavikButton::Type>(),
        constructor<TavikButton, QIcon, QSize, TavikButton::Type>(),
        making<TavikButton, QString, QSize, bool>(
            [](QWidget *parent, const QString &path, const QSize &size, bool hasLabel) {
                return new TavikButton(path, size, hasLabel ? new TavikLabel : nullptr, parent);
            }),
        constructor<TavikButtonGroup, Direction, double, QSizeF, TavikButtonGroup::Mode, double>(),
        constructor<TavikButtonGroup, Direction, int, QSize, TavikButtonGroup::Mode, int>(),
        constructor<TavikCheckBox, QString>(),
        constructor<TavikRadioButton, QString>(),
        constructor<TavikLineEdit, QString, TavikLineEdit::Type, Qt::Alignment>(),
        constructor<TavikLineEdit, QString, TavikLineEdit::Type, Qt::Alignment>(), // six types
        making<TavikSpinbox, int, int, int, double>(
            [](QWidget *parent, int first, int last, int step, double rem) {
                return new TavikSpinbox(first, last, step, parent, true, rem);
            }),
        constructor<TavikDoubleSpinbox, double, double, double>(),
        constructor<TavikComboBox, TavikComboBox::Type>(),
        constructor<TavikSlider, Pixels, Pixels>(),
        constructor<TavikSlider, double, int>(),
        constructor<TavikContainer, Direction, QString, QString, QString, QString, QString>(),
        constructor<TavikExpandable, QString, double, bool>(),
        constructor<TavikScrollArea, QString, QString, QString>(),
        constructor<TavikColorButton, QColor>(),
        constructor<TavikColorPicker, Pixels, Pixels>(),
        constructor<TavikColorSilder, Pixels, Pixels>(TavikColorSilder::Alpha),
        constructor<TavikColorSilder, Pixels, Pixels>(TavikColorSilder::Type(7)),
        constructor<TavikColorWell, Pixels, Pixels>(),
        constructor<TavikGradientBar, Pixels, Pixels>(),
        constructor<TavikGradientBar, double, double>(),
        constructor<TavikColorPopup, QColor>(),
    };
    return table;
}

Deed construct(Random &random)
{
    const Constructor &constructor = random.pick(constructors());
    const Make make = constructor.draw(random);
    return {QLatin1String(constructor.className), [=](Stage &stage) {
                stage.replace(Stage::slotOf(constructor.className), make(stage.window()));
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
    return deedTo(slot, [=](Stage &stage, QWidget *control) {
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
    });
}

// ---- In the middle of a signal ----

struct Signal
{
    const char *className;
    QString name;
    std::function<QMetaObject::Connection(QWidget *, QObject *, std::function<void()>)> connect;
    Busy::Survival survival = Busy::Buttons;
};

template <class Class, class Owner, class... Arguments>
Signal rowOf(const QString &name, void (Owner::*member)(Arguments...))
{
    return {Class::staticMetaObject.className(), name,
            [member](QWidget *control, QObject *context, const std::function<void()> &slot) {
                // The arguments are copied, because a receiver may read them.
                return QObject::connect(static_cast<Class *>(control), member, context,
                                        [slot](std::decay_t<Arguments>...) { slot(); });
            }};
}

std::vector<Signal> allSignals()
{
    std::vector<Signal> table;
    ADD(TavikButton, &C::pressed, &C::released, &C::clicked, &C::toggled)
    table.back().survival = Busy::Nothing;
    ADD(TavikButtonGroup, &C::buttonClicked)
    ADD(TavikCheckBox, &C::toggled)
    ADD(TavikRadioButton, &C::toggled)
    ADD(TavikLineEdit, &C::textChanged, &C::editingFinished)
    ADD(TavikSpinbox, qOverload<int>(&C::valueChanged))
    ADD(TavikDoubleSpinbox, qOverload<double>(&C::valueChanged))
    ADD(TavikComboBox, qOverload<int>(&C::currentIndexChanged))
    ADD(TavikFontFamilyComboBox, &C::editTextChanged)
    ADD(TavikSlider, &C::valueChanged)
    ADD(TavikDial, &C::valueChanged)
    ADD(TavikExpandable, &C::remExpandHeightChanged, &C::animationStarted, &C::animationFinished)
    ADD(TavikImageList, &C::itemSelectionChanged)
    ADD(TavikColorButton, &C::clicked, &C::showPopup, &C::colorChanged)
    ADD(TavikColorPicker, &C::colorChanged)
    ADD(TavikColorSilder, &C::valueChanged)
    ADD(TavikColorWell, &C::colorSelected, &C::addColorRequested)
    ADD(TavikGradientBar, &C::selectedStartColor, &C::selectedEndColor, &C::colorPopupRequest)
    ADD(TavikColorPopup, &C::colorChanged)
    return table;
}

/// The popup tells of its hiding: not the time for just any step, see Busy::isPopupHiding().
const Signal &hiding()
{
    static const Signal hiding =
        rowOf<TavikColorPopup>(QStringLiteral("colorPopupHide"), &TavikColorPopup::colorPopupHide);
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
    static const std::vector<Signal> signals = allSignals();
    const Signal &signal = random.oneIn(20) ? hiding() : random.pick(signals);
    const Deed inner = deedWithin(signal, random);
    const auto setUp = [=, &signal](Stage &stage, QWidget *target) {
        const QPointer<QWidget> control = target;
        const auto connection = std::make_shared<QMetaObject::Connection>();
        const bool canHide = &signal == &hiding();
        *connection = signal.connect(control, stage.wires(), [=, &signal, &stage] {
            if (Busy::isPopupHiding() && !canHide)
                return;
            QObject::disconnect(*connection);
            if (!control)
                Finding::end(QStringLiteral("A control that is being destroyed sends a signal"));
            const Busy busy(control, signal.survival);
            inner.act(stage);
        });
    };
    return deedTo(Stage::slotOf(signal.className), setUp,
                  QStringLiteral("::%1 does %2").arg(signal.name, inner.text));
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

std::vector<Action> Actions::lifetimes()
{
    return {
        {"destroy", 8, destroy}, {"construct", 10, construct},         {"nest", 5, nest},
        {"trap", 45, trap},      {"processEvents", 20, processEvents},
    };
}
