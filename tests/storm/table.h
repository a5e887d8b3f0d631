#ifndef TAVIK_TESTS_STORM_TABLE_H
#define TAVIK_TESTS_STORM_TABLE_H

#include <QRegularExpression>

#include <vector>

/// The names in `&C::one, qOverload<int>(&C::other)`, in their order.
inline QStringList memberNames(const char *code)
{
    static const QRegularExpression member(QStringLiteral("&C::(\\w+)"));
    QStringList names;
    for (auto match = member.globalMatch(QLatin1String(code)); match.hasNext();)
        names += match.next().captured(1);
    return names;
}

/// Adds a row for each of a class's members, with its name for the log. `rowOf` makes a row of both.
template <class Row, class RowOf, class... Members>
void addRows(std::vector<Row> &table, const char *code, RowOf rowOf, Members... members)
{
    const QStringList names = memberNames(code);
    auto name = names.begin();
    (table.push_back(rowOf(*name++, members)), ...);
}

/// Adds members of a class, which is called C there, to `table`, by the function template `rowOf`.
#define ADD(Class, ...)                                                                                    \
    {                                                                                                      \
        using C = Class;                                                                                   \
        const auto row = [](const QString &name, const auto &member) { return rowOf<C>(name, member); };   \
        addRows(table, TEXT_OF(__VA_ARGS__), row, __VA_ARGS__);                                            \
    }
#define TEXT_OF(...) #__VA_ARGS__ // of macros among them, what they stand for

#endif
