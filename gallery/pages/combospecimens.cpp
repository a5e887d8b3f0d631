#include "combospecimens.h"

#include "look.h"
#include "report.h"
#include "shared/comboplace.h"
#include "stategrid.h"

#include <QFontInfo>

#include <Tavik/TavikFontFamilyComboBox>

namespace {

constexpr double height = 2.667; // rem

TavikComboBox *filled(TavikComboBox::Type type, const QStringList &texts)
{
    auto *combo = new TavikComboBox(type);
    combo->addItems(texts);
    return combo;
}

QWidget *live(const QString &name, TavikComboBox *combo, double width = 12)
{
    auto *report = new Report(20);
    report->follow(combo, &QComboBox::currentTextChanged, QStringLiteral("currentTextChanged"));
    return Look::live(name, new ComboPlace(combo, width, height), report);
}

} // namespace

QWidget *ComboSpecimens::types()
{
    const QStringList units{tr("Pixels"), tr("Millimetres"), tr("Inches"), tr("Points")};
    return Look::row({live(QStringLiteral("ReadOnly"), filled(TavikComboBox::ReadOnly, units)),
                      live(QStringLiteral("Editable"), filled(TavikComboBox::Editable, units))});
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
    return Look::row({live(tr("Family"), families, 18), sample});
}

QWidget *ComboSpecimens::states()
{
    using Specimen::State;
    auto *grid = new StateGrid({State::Rest, State::Hover, State::Disabled});
    const auto addRow = [grid](const QString &name, TavikComboBox::Type type) {
        grid->addRow(name, [type] {
            return new ComboPlace(filled(type, {tr("Pixels"), tr("Millimetres")}), 12, height);
        });
    };
    addRow(QStringLiteral("ReadOnly"), TavikComboBox::ReadOnly);
    addRow(QStringLiteral("Editable"), TavikComboBox::Editable);
    return grid;
}
