#include "labelspage.h"

#include "specimens/labelspecimens.h"

LabelsPage::LabelsPage()
    : Page(tr("A line of text in the library's type sizes and colours, for captions, hints and titles."))
{
    addExample(Half, tr("Types"),
               tr("Default is for ordinary text. Assist is smaller and paler, for what only helps."),
               LabelSpecimens::types(), {"labelspecimens", "types"});
    addExample(Half, tr("Size and colour"),
               tr("Both setters restyle the label at once. The size is in rem."),
               LabelSpecimens::sizeAndColour(), {"labelspecimens", "sizeAndColour"});
    addExample(Whole, tr("In a form"),
               tr("Captions at the left, hints at the right. What can't be used now is disabled together "
                  "with its caption."),
               LabelSpecimens::form(), {"labelspecimens", "form"});
}
