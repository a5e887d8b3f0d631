#include "combospecimens.h"

#include "common/comboplace.h"
#include "look.h"
#include "report.h"
#include "stategrid.h"

#include <QFontInfo>

#include <Tavik/TavikFontFamilyComboBox>

namespace {

QWidget *live(
    const QString &name, TavikComboBox *combo, double width = 12)
{
    auto *report = new Report(20);
    report->follow(combo, &QComboBox::currentTextChanged,
        "currentTextChanged");
    return Look::live(
        name, new ComboPlace(combo, width, 2.667), report);
}

} // namespace

QWidget *ComboSpecimens::types()
{
    //! [types]
    const QStringList units{tr("Pixels"), tr("Millimetres"),
        tr("Inches"), tr("Points")};
    auto *unit = new TavikComboBox;
    unit->addItems(units);
    auto *anyUnit = new TavikComboBox(TavikComboBox::Editable);
    anyUnit->addItems(units);
    //! [types]
    return Look::row(
        {live("ReadOnly", unit), live("Editable", anyUnit)});
}

QWidget *ComboSpecimens::fontFamilies()
{
    TavikLabel *sample = Look::flush(
        new TavikLabel(tr("Quick zephyrs blow")));
    sample->setFontRemSz(1.667);
    sample->setRemWidth(22);
    //! [fontFamilies]
    auto *family = new TavikFontFamilyComboBox;
    const auto show = [=](const QString &name) {
        if (family->findText(name, Qt::MatchFixedString) < 0)
            return; // half-typed
        QFont font = sample->font();
        font.setFamily(name);
        sample->setFont(font);
    };
    QObject::connect(
        family, &QComboBox::currentTextChanged, sample, show);
    //! [fontFamilies]
    family->setCurrentText(QFontInfo(sample->font()).family());
    return Look::row({live(tr("Family"), family, 18), sample});
}

QWidget *ComboSpecimens::states()
{
    using Specimen::State;
    auto *grid = new StateGrid(
        {State::Rest, State::Hover, State::Disabled});
    const auto addRow = [grid](const QString &name,
                            TavikComboBox::Type type) {
        grid->addRow(name, [type] {
            auto *combo = new TavikComboBox(type);
            combo->addItems({tr("Pixels"), tr("Millimetres")});
            return combo;
        });
    };
    addRow("ReadOnly", TavikComboBox::ReadOnly);
    addRow("Editable", TavikComboBox::Editable);
    const QList<TavikComboBox *> combos =
        grid->findChildren<TavikComboBox *>();
    for (TavikComboBox *unit : combos) {
        //! [states]
        unit->ensurePolished();
        unit->setRemSize(12, 2.667);
        //! [states]
    }
    return grid;
}
