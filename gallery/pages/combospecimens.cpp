#include "combospecimens.h"

#include "look.h"
#include "report.h"
#include "stategrid.h"

#include <QFontInfo>

#include <Tavik/TavikFontFamilyComboBox>

namespace {

/// Gives the combo boxes of a specimen their size, where they stand.
///
/// The least size of the look comes with polishing, again under each new parent, and overrules what was
/// set.
QWidget *sized(QWidget *specimen, double width = 12)
{
    const QList<TavikComboBox *> combos = specimen->findChildren<TavikComboBox *>();
    for (TavikComboBox *combo : combos) {
        combo->ensurePolished();
        combo->setRemSize(width, 2.667);
    }
    return specimen;
}

QWidget *live(const QString &name, TavikComboBox *combo)
{
    auto *report = new Report(20);
    report->follow(combo, &QComboBox::currentTextChanged, QStringLiteral("currentTextChanged"));
    return Look::live(name, combo, report);
}

} // namespace

QWidget *ComboSpecimens::types()
{
    const QStringList units{tr("Pixels"), tr("Millimetres"), tr("Inches"), tr("Points")};
    const auto filled = [&units](TavikComboBox::Type type) {
        auto *combo = new TavikComboBox(type);
        combo->addItems(units);
        return combo;
    };
    return sized(Look::row({live(QStringLiteral("ReadOnly"), filled(TavikComboBox::ReadOnly)),
                            live(QStringLiteral("Editable"), filled(TavikComboBox::Editable))}));
}

QWidget *ComboSpecimens::fontFamilies()
{
    auto *families = new TavikFontFamilyComboBox;
    TavikLabel *sample = Look::flush(new TavikLabel(tr("Quick zephyrs blow")));
    sample->setFontRemSz(1.667);
    sample->setRemWidth(22);
    const auto show = [families, sample](const QString &family) {
        // While a name is typed, there is no such family yet.
        if (families->findText(family, Qt::MatchFixedString) < 0)
            return;
        QFont font = sample->font();
        font.setFamily(family);
        sample->setFont(font);
    };
    QObject::connect(families, &QComboBox::currentTextChanged, sample, show);
    families->setCurrentText(QFontInfo(sample->font()).family());
    return sized(Look::row({live(tr("Family"), families), sample}), 18);
}

QWidget *ComboSpecimens::states()
{
    using Specimen::State;
    auto *grid = new StateGrid({State::Rest, State::Hover, State::Disabled});
    const auto addRow = [grid](const QString &name, TavikComboBox::Type type) {
        grid->addRow(name, [type] {
            auto *combo = new TavikComboBox(type);
            combo->addItems({tr("Pixels"), tr("Millimetres")});
            return combo;
        });
    };
    addRow(QStringLiteral("ReadOnly"), TavikComboBox::ReadOnly);
    addRow(QStringLiteral("Editable"), TavikComboBox::Editable);
    return sized(grid);
}
