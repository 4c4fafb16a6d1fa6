// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "constraints/ppd_evaluation.h"
#include "constraints/ppd_rules.h"
#include "ppd/constraint_table.h"
#include "tests/support/inline_ppd.h"

#include <QSet>
#include <QTest>

#include <cups/ppd.h>

#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr int defaultPpds = 60; // of each form; KELMAR_CONSTRAINT_PPDS sets a larger number
constexpr int walkLength = 40;

// Generates random PPDs with constraints of every form.
class Generator
{
public:
    Generator(unsigned seed, bool longForm) : m_random(seed), m_longForm(longForm) {}

    QByteArray body()
    {
        QByteArray plain, installable;
        const int count = 4 + below(8);
        for (int i = 0; i < count; ++i)
            (i > 1 && below(4) == 0 ? installable : plain) += option(i);
        QByteArray text =
            ppdGroup("General/General", plain) + ppdGroup("InstallableOptions/Units", installable);
        const int lines = 1 + below(30);
        for (int i = 0; i < lines; ++i)
            text += m_longForm && below(5) != 0 ? longLine() : pairLine();
        return text;
    }

private:
    int below(int limit) { return int(m_random() % unsigned(limit)); }

    QByteArray option(int number)
    {
        static const QByteArrayList plainNames{"A", "B", "None", "Off", "False", "True", "Tray_1", "OFFSET"};
        const QByteArray name =
            number == 0 && below(2) == 0 ? "PageSize" : "Opt" + QByteArray::number(number);
        QByteArrayList choices;
        if (name == "PageSize")
            choices = {"A4", "A3", "Letter"};
        while (choices.size() < 2 + below(4)) {
            const QByteArray choice = plainNames[below(int(plainNames.size()))];
            if (!choices.contains(choice))
                choices.append(choice);
        }
        m_options.append({name, choices});
        QByteArray text = ppdOption(name, choices);
        if (name == "PageSize") {
            for (const QByteArray &size : choices)
                text += "*PaperDimension " + size + ": \"595 842\"\n";
            text += ppdOption("PageRegion", choices);
            m_options.append({"PageRegion", choices});
        }
        if (below(4) == 0) {
            text += "*Custom" + name + " True: \"pop\"\n";
            text += name == "PageSize" ? "*ParamCustomPageSize Width: 1 points 36 1000\n"
                                         "*ParamCustomPageSize Height: 2 points 36 1000\n"
                                       : "*ParamCustom" + name + " Number/Number: 1 int 1 9\n";
            m_custom.append(name);
        }
        return text;
    }

    // "*Opt1 A", "*Opt1", a custom choice, one in other letter case, or one that the PPD lacks.
    QByteArray term()
    {
        const auto &[name, choices] = m_options[below(int(m_options.size()))];
        if (!m_custom.isEmpty() && below(8) == 0)
            return "*Custom" + m_custom[below(int(m_custom.size()))] + " True";
        QByteArray option = below(25) == 0 ? name.toUpper() : below(40) == 0 ? "Nowhere" : name;
        if (below(4) == 0)
            return '*' + option;
        QByteArray choice = choices[below(int(choices.size()))];
        if (below(25) == 0)
            choice = choice.toLower();
        return '*' + option + ' ' + (below(40) == 0 ? "Nothing" : choice);
    }
    QByteArray pairLine()
    {
        const QByteArray keyword = below(5) == 0 ? "*NonUIConstraints: " : "*UIConstraints: ";
        const QByteArray first = term(), second = term();
        const QByteArray line = keyword + first + ' ' + second + '\n';
        return below(3) == 0 ? line + keyword + second + ' ' + first + '\n' : line;
    }
    QByteArray longLine()
    {
        QByteArray line = term();
        for (int more = below(4); more > 0; --more)
            line += "  " + term();
        return "*cupsUIConstraints resolver" + QByteArray::number(below(9)) + ": \"" + line + "\"\n";
    }

    std::mt19937 m_random;
    bool m_longForm;
    QList<std::pair<QByteArray, QByteArrayList>> m_options;
    QByteArrayList m_custom;
};

// PageRegion represents PageSize in a PPD's lines; a conflict may be reported for either of the two.
QByteArray ownName(const QByteArray &option)
{
    return option == "PageRegion" ? "PageSize" : option;
}

// The result that must be equal after each mark: the options that take part in a conflict.
QSet<QByteArray> conflictedByLibcups(ppd_file_t *ppd)
{
    QSet<QByteArray> options;
    ppdConflicts(ppd);
    for (const ppd_option_t *option = ppdFirstOption(ppd); option; option = ppdNextOption(ppd)) {
        if (option->conflicted)
            options.insert(ownName(option->keyword));
    }
    return options;
}

QByteArray bytes(std::string_view view)
{
    return QByteArray(view.data(), qsizetype(view.size()));
}

QSet<QByteArray> conflictedByRules(const constraints::PpdRules &rules)
{
    QSet<QByteArray> options;
    for (const auto line : rules.brokenLines()) {
        for (const auto term : rules.engine().terms(line))
            options.insert(ownName(bytes(rules.engine().optionName(rules.engine().optionOf(term)))));
    }
    return options;
}

std::vector<ppd_option_t *> optionsOf(ppd_file_t *ppd)
{
    std::vector<ppd_option_t *> options;
    for (ppd_option_t *option = ppdFirstOption(ppd); option; option = ppdNextOption(ppd))
        options.push_back(option);
    return options;
}

const char *valueOf(const ppd_choice_t &choice)
{
    const bool isCustom = qstrcmp(choice.choice, "Custom") == 0;
    return !isCustom                                          ? choice.choice
           : qstrcmp(choice.option->keyword, "PageSize") == 0 ? "Custom.100x200"
                                                              : "Custom.5";
}

} // namespace

// The engine must report the same conflicts for the marks of any PPD as libcups, and libcups must find the
// same resolutions with the constraints that the engine selects for it.
class AgreeWithLibcupsTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void onAnyPpd_data();
    void onAnyPpd();
};

namespace {

using Forbidden = QMap<QByteArray, QSet<QByteArray>>; // by option

Forbidden forbiddenBy(const constraints::PpdRules &rules, const std::vector<ppd_option_t *> &options)
{
    Forbidden all;
    for (const ppd_option_t *option : options) {
        for (const auto &forbidden : rules.forbiddenChoices(option->keyword))
            all[option->keyword].insert(bytes(forbidden.choice));
    }
    return all;
}

// Marks each choice of an option in turn: it must be in conflict if it was forbidden, or if a line that
// concerns only this option forbids it.
void compareChoices(ppd_file_t *ppd, constraints::PpdRules &rules, ppd_option_t *option,
                    const QSet<QByteArray> &forbidden, int *conflicts)
{
    const ppd_choice_t *before = ppdFindMarkedChoice(ppd, option->keyword);
    const bool isRegion = qstrcmp(option->keyword, "PageRegion") == 0;
    // Marking a size removes the region's mark, which changes more than this option.
    if (!before || isRegion || ppdFindMarkedChoice(ppd, "PageRegion"))
        return;
    for (int i = 0; i < option->num_choices; ++i) {
        const ppd_choice_t &choice = option->choices[i];
        ppdMarkOption(ppd, option->keyword, valueOf(choice));
        rules.refresh();
        const auto broken = rules.brokenLines();
        const bool forbidsItself = std::ranges::any_of(broken, [&](auto line) {
            return std::ranges::all_of(rules.engine().terms(line), [&](auto term) {
                return rules.engine().optionName(rules.engine().optionOf(term)) == option->keyword;
            });
        });
        const bool isConflict = conflictedByLibcups(ppd).contains(option->keyword);
        *conflicts += isConflict;
        QVERIFY2((forbidden.contains(choice.choice) || forbidsItself) == isConflict,
                 QByteArray(option->keyword) + ' ' + choice.choice);
    }
    ppdMarkOption(ppd, option->keyword, valueOf(*before));
    rules.refresh();
}

// The changes by which libcups resolves the conflicts among the marks; the choice of `keep`, which may be
// null, is kept.
QByteArrayList resolutionOf(ppd_file_t *ppd, const ppd_option_t *keep)
{
    const ppd_choice_t *kept = keep ? ppdFindMarkedChoice(ppd, keep->keyword) : nullptr;
    int count = 0;
    cups_option_t *options = nullptr;
    QByteArrayList changes{QByteArray::number(cupsResolveConflicts(
        ppd, kept ? keep->keyword : nullptr, kept ? kept->choice : nullptr, &count, &options))};
    for (int i = 0; i < count; ++i)
        changes.append(QByteArray(options[i].name) + ' ' + options[i].value);
    cupsFreeOptions(count, options);
    return changes;
}

// Adds the number of constraints that libcups need not evaluate.
void compareResolutions(ppd_file_t *ppd, const constraints::PpdRules &rules, const ppd_option_t *keep,
                        int *spared)
{
    const QByteArrayList resolution = resolutionOf(ppd, keep);
    const int all = cupsArrayCount(ppd->cups_uiconstraints);
    {
        const constraints::PpdEvaluation limited(ppd, rules);
        *spared += all - cupsArrayCount(ppd->cups_uiconstraints);
        QCOMPARE(resolutionOf(ppd, keep), resolution);
    }
    QCOMPARE(cupsArrayCount(ppd->cups_uiconstraints), all);
}

// Compares the results of the table with the literal lines.
void compareLiteral(ppd_file_t *ppd)
{
    using Side = std::pair<QString, QString>;
    QSet<Side> sides;
    QMap<Side, QSet<Side>> forbidden;
    for (const ppd_const_t &line : std::span(ppd->consts, size_t(ppd->num_consts))) {
        const Side first(QString::fromUtf8(line.option1), QString::fromUtf8(line.choice1));
        const Side second(QString::fromUtf8(line.option2), QString::fromUtf8(line.choice2));
        sides << first << second;
        forbidden[first] << second;
        forbidden[second] << first;
    }
    const ConstraintTable table(ppd);
    for (const Side &first : sides) {
        QSet<QString> options;
        for (const Side &second : sides) {
            const bool conflict = forbidden[first].contains(second);
            QCOMPARE(table.conflicts(first.first, first.second, second.first, second.second), conflict);
            if (conflict)
                options << second.first;
        }
        QCOMPARE(table.conflictableOptions(first.first, first.second), options);
    }
}

} // namespace

void AgreeWithLibcupsTest::onAnyPpd_data()
{
    QTest::addColumn<bool>("longForm");
    QTest::newRow("pairs") << false;
    QTest::newRow("lines of several terms") << true;
}

void AgreeWithLibcupsTest::onAnyPpd()
{
    QFETCH(const bool, longForm);
    const int ppds = std::max(defaultPpds, qEnvironmentVariableIntValue("KELMAR_CONSTRAINT_PPDS"));
    int conflicts = 0, spared = 0;
    for (int seed = 0; seed < ppds; ++seed) {
        const QByteArray body = Generator(unsigned(seed), longForm).body();
        const auto tellPpd = qScopeGuard([&] {
            if (QTest::currentTestFailed())
                qWarning("seed %d:\n%s", seed, body.constData());
        });
        const InlinePpd inlinePpd(body);
        ppd_file_t *ppd = inlinePpd.get();
        QVERIFY(ppd);
        compareLiteral(ppd);
        const std::vector<ppd_option_t *> options = optionsOf(ppd);
        constraints::PpdRules rules(ppd);
        std::mt19937 random{unsigned(seed)};
        for (int step = 0; step < walkLength && !QTest::currentTestFailed(); ++step) {
            const Forbidden forbidden = forbiddenBy(rules, options);
            QMap<QByteArray, quint32> revisions;
            for (const ppd_option_t *option : options)
                revisions[option->keyword] = rules.revision(rules.engine().findOption(option->keyword));
            ppd_option_t *option = options[random() % options.size()];
            const QByteArray keyword = option->keyword;
            compareChoices(ppd, rules, option, forbidden[keyword], &conflicts);
            if (QTest::currentTestFailed())
                return;
            const ppd_choice_t &choice = option->choices[random() % unsigned(option->num_choices)];
            {
                const constraints::PpdEvaluation unchecked(ppd);
                QCOMPARE(ppdMarkOption(ppd, option->keyword, valueOf(choice)), 0); // reports no conflict
            }
            rules.refresh();
            QCOMPARE(conflictedByRules(rules), conflictedByLibcups(ppd));
            for (const ppd_option_t *keep :
                 {option, options[random() % options.size()], static_cast<ppd_option_t *>(nullptr)})
                compareResolutions(ppd, rules, keep, &spared);
            const Forbidden after = forbiddenBy(rules, options);
            for (auto it = revisions.begin(); it != revisions.end(); ++it) {
                if (rules.revision(rules.engine().findOption(it.key().toStdString())) == it.value())
                    QCOMPARE(after.value(it.key()), forbidden.value(it.key()));
            }
        }
    }
    QVERIFY(conflicts > ppds);
    QVERIFY(longForm || spared > ppds * walkLength);
}

QTEST_GUILESS_MAIN(AgreeWithLibcupsTest)
#include "agree_with_libcups_test.moc"
