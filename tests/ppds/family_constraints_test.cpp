// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "ppd/constraint_table.h"
#include "tests/ppds/family.h"

#include <QTest>

#include <algorithm>
#include <span>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

// The choices of one option, with the names used in the table.
struct Option
{
    ppd_option_t *record;
    QString keyword;
    QStringList choices;
};

std::vector<Option> optionsOf(ppd_file_t *ppd)
{
    std::vector<Option> options;
    for (const ppd_group_t &group : std::span(ppd->groups, size_t(ppd->num_groups))) {
        for (ppd_option_t &record : std::span(group.options, size_t(group.num_options))) {
            Option option{&record, QString::fromUtf8(record.keyword), {}};
            // In constraints libcups treats PageRegion as PageSize; it is a second name, not a choice of the
            // user, and no program offers it.
            if (option.keyword == u"PageRegion"_s)
                continue;
            for (const ppd_choice_t &choice : std::span(record.choices, size_t(record.num_choices)))
                option.choices.append(QString::fromUtf8(choice.choice));
            options.push_back(option);
        }
    }
    return options;
}

bool isConstrained(const ppd_file_t *ppd, const Option &option)
{
    return std::ranges::any_of(std::span(ppd->consts, size_t(ppd->num_consts)), [&](const ppd_const_t &line) {
        return qstrcmp(line.option1, option.record->keyword) == 0 ||
               qstrcmp(line.option2, option.record->keyword) == 0;
    });
}

// libcups can replace the mark of one option, which includes a full check, but can only remove all marks.
void unmark(ppd_file_t *ppd, const Option &option)
{
    for (ppd_choice_t &choice : std::span(option.record->choices, size_t(option.record->num_choices))) {
        if (choice.marked)
            cupsArrayRemove(ppd->marked, &choice);
        choice.marked = 0;
    }
    // Constraints on the page size use this field.
    if (option.keyword == u"PageSize"_s) {
        for (ppd_size_t &size : std::span(ppd->sizes, size_t(ppd->num_sizes)))
            size.marked = 0;
    }
}

} // namespace

// The table must forbid exactly the pairs of choices for which libcups reports a conflict if both are marked.
class FamilyConstraintsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void agreesWithLibcups_data();
    void agreesWithLibcups();

private:
    // Compares each choice of one option with all choices of others; adds the forbidden pairs.
    void compare(ppd_file_t *ppd, const ConstraintTable &table, const Option &first,
                 std::span<const Option> others, int &forbidden);
};

void FamilyConstraintsTest::agreesWithLibcups_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < int(family.size()); ++i)
        QTest::newRow(family[size_t(i)].file) << i;
}

void FamilyConstraintsTest::compare(ppd_file_t *ppd, const ConstraintTable &table, const Option &first,
                                    std::span<const Option> others, int &forbidden)
{
    for (const QString &choice1 : first.choices) {
        ppdMarkOption(ppd, first.record->keyword, choice1.toUtf8().constData());
        for (const Option &second : others) {
            for (const QString &choice2 : second.choices) {
                // Nothing else is marked, so every conflict is caused by this pair. The call ends with the
                // full check and returns the result of ppdConflicts.
                const bool conflict =
                    ppdMarkOption(ppd, second.record->keyword, choice2.toUtf8().constData()) > 0;
                forbidden += conflict;
                const bool agrees =
                    table.conflicts(first.keyword, choice1, second.keyword, choice2) == conflict &&
                    table.conflicts(second.keyword, choice2, first.keyword, choice1) == conflict;
                QVERIFY2(agrees, qPrintable(u"%1 %2 with %3 %4"_s.arg(first.keyword, choice1, second.keyword,
                                                                      choice2)));
            }
            unmark(ppd, second);
        }
    }
    unmark(ppd, first);
}

void FamilyConstraintsTest::agreesWithLibcups()
{
    QFETCH(int, index);
    const PpdFile ppd = openFamilyPpd(family[size_t(index)]);
    QVERIFY(ppd);
    const ConstraintTable table(ppd.get());
    std::vector<Option> options = optionsOf(ppd.get());
    std::erase_if(options, [&](const Option &option) { return !isConstrained(ppd.get(), option); });
    QCOMPARE(cupsArrayCount(ppd->marked), 0);

    int forbidden = 0;
    for (size_t i = 0; i < options.size() && !QTest::currentTestFailed(); ++i)
        compare(ppd.get(), table, options[i], std::span(options).subspan(i + 1), forbidden);
    if (QTest::currentTestFailed())
        return;
    // ppdc writes each line of the source in both directions, and the sources contain no duplicates. So these
    // pairs are complete.
    QCOMPARE(forbidden * 2, ppd->num_consts);
}

QTEST_GUILESS_MAIN(FamilyConstraintsTest)
#include "family_constraints_test.moc"
