#include "actions.h"

#include "stage.h"

#include <numeric>

namespace {

std::vector<Action> allActions()
{
    std::vector<Action> all;
    for (const std::vector<Action> &family :
         {Actions::pointer(), Actions::keyboard(), Actions::setters(), Actions::windows(),
          Actions::lifetimes(), Actions::access()}) {
        all.insert(all.end(), family.begin(), family.end());
    }
    return all;
}

} // namespace

Deed deedTo(int slot, const std::function<void(Stage &, QWidget *)> &act, const QString &text)
{
    return {QLatin1String(Stage::className(slot)) + text,
            [=](Stage &stage) { act(stage, stage.at(slot)); }};
}

Deed Actions::any(Random &random)
{
    static const std::vector<Action> all = allActions();
    const auto add = [](int sum, const Action &action) { return sum + action.weight; };
    static const int weights = std::accumulate(all.begin(), all.end(), 0, add);
    int left = random.below(weights);
    auto action = all.begin();
    while (left >= action->weight)
        left -= (action++)->weight;
    Deed deed = action->plan(random);
    deed.text.prepend(QLatin1String(action->name) + QLatin1Char(' '));
    return deed;
}
