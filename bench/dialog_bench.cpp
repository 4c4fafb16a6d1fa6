// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// Measures the response times of an open dialog, with a print system without a server: changes, undo, a
// preset and the search with 200 options and 20,000 constraints, and a list of 10,000 printers. Also measures
// the memory of 1,000 dialogs in one process. Times end when all events are processed and the window is
// painted. They are medians, except for the longest time during which no event is processed. Prints a line
// for each figure: its name, value, unit and goal, separated by tabs. Exits with 1 if a goal is missed. Run
// by bench/after_start.py. Usage: dialog_bench [DIALOGS]

#include "bench/large_ppd.h"
#include "host/printing/preset_store.h"
#include "host/window/guide/search_bar.h"
#include "host/window/pages/page_book.h"
#include "host/window/print_window.h"
#include "host/window/printers/printer_box.h"
#include "host/window/printers/printer_picker.h"
#include "platform/background.h"
#include "platform/choice_box.h"
#include "tests/host/family_printer.h"

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <vector>

using namespace host;
using namespace Qt::StringLiterals;

namespace {

constexpr double changeGoal = 3; // milliseconds, with 20,000 constraints
constexpr double frame = 16;     // milliseconds
constexpr double gapGoal = 100;  // milliseconds
constexpr double growthGoal = 1; // kilobytes for each dialog
constexpr int rounds = 25;
constexpr int queues = 10'000;

int missed = 0;

void report(const char *what, double value, const char *unit, double goal)
{
    std::printf("%s\t%.2f\t%s\t%g\n", what, value, unit, goal);
    std::fflush(stdout);
    missed += value > goal;
}

double median(std::vector<double> values)
{
    std::ranges::sort(values);
    return values.at(values.size() / 2);
}

// Processes all events, including those that are posted meanwhile, such as the paint event of a widget that
// was just laid out.
void paint()
{
    for (int pass = 0; pass < 3; ++pass)
        QCoreApplication::processEvents();
}

double millisecondsOf(const std::function<void()> &act)
{
    const auto start = std::chrono::steady_clock::now();
    act();
    paint();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

// The longest time, in milliseconds, during which no event is processed, from the call of `act` until the
// worker threads have finished.
double longestGap(const std::function<void()> &act)
{
    double longest = millisecondsOf(act);
    do {
        QTest::qSleep(1);
        longest = std::max(longest, millisecondsOf([] {}));
    } while (platform::Background::isUnderWay());
    return std::max(longest, millisecondsOf([] {}));
}

std::unique_ptr<PrintWindow> openWindow(PrintSystem &system, Extensions &extensions, const QString &page)
{
    PrintTask task;
    task.files = {sourcePath("/demo/report.pdf")};
    task.firstPage = page;
    auto window = std::make_unique<PrintWindow>(system, extensions, task);
    PrintError error;
    if (!window->open(&error))
        qFatal("%s", qPrintable(error.message));
    window->show();
    if (!QTest::qWaitFor([&] { return window->session() && window->isSettled(); }, 30'000))
        qFatal("the printer does not open");
    return window;
}

struct Constraint
{
    QString option1, choice1, option2, choice2;
};

std::vector<Constraint> constraints()
{
    std::vector<Constraint> found;
    for (const QByteArray &line : largePpd().split('\n')) {
        const QList<QByteArray> words = line.simplified().split(' ');
        if (words.size() == 5 && words[0] == "*UIConstraints:")
            found.push_back({QString::fromUtf8(words[1].mid(1)), QString::fromUtf8(words[2]),
                             QString::fromUtf8(words[3].mid(1)), QString::fromUtf8(words[4])});
    }
    return found;
}

platform::ChoiceBox *boxOf(const PrintWindow &window, const QString &keyword)
{
    for (auto *box : window.findChildren<platform::ChoiceBox *>()) {
        if (box->optionKeyword() == keyword)
            return box;
    }
    return nullptr;
}

// Selects a choice as a user does.
void choose(platform::ChoiceBox *box, const QString &choice)
{
    int row = 0;
    while (row < box->count() && box->choiceKeyword(row) != choice)
        ++row;
    if (row == box->count())
        qFatal("there is no choice %s", qPrintable(choice));
    box->setCurrentIndex(row);
    Q_EMIT box->activated(row);
}

void press(PrintWindow &window, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QWidget *focus = window.focusWidget();
    QTest::keyClick(focus ? focus : &window, key, modifiers);
}

void undo(PrintWindow &window)
{
    press(window, Qt::Key_Z, Qt::ControlModifier);
}

void measureChanges(PrintWindow &window)
{
    std::vector<double> free, conflicting, undone;
    const std::vector<Constraint> all = constraints();
    for (int round = 0; round < rounds; ++round) {
        const Constraint &pair = all.at(std::size_t(round) * 97);
        platform::ChoiceBox *first = boxOf(window, pair.option1);
        platform::ChoiceBox *second = boxOf(window, pair.option2);
        free.push_back(millisecondsOf([&] { choose(first, pair.choice1); }));
        if (window.findChild<MessageBar *>()->isShowing())
            qFatal("there is a conflict with defaults");
        conflicting.push_back(millisecondsOf([&] { choose(second, pair.choice2); }));
        if (!window.findChild<MessageBar *>()->isShowing())
            qFatal("no conflict is shown");
        undone.push_back(millisecondsOf([&] { undo(window); }));
        undo(window);
        paint();
        if (window.session()->ppd()->markedChoice(pair.option1) != u"C00" ||
            window.findChild<MessageBar *>()->isShowing())
            qFatal("a change was not undone");
    }
    report("change without a conflict, 20,000 constraints", median(free), "ms", changeGoal);
    report("change into a conflict, 20,000 constraints", median(conflicting), "ms", changeGoal);
    report("undo, 20,000 constraints", median(undone), "ms", frame);
}

QAction *presetAction(QMenu *menu, const QString &text)
{
    const auto open = [menu] { // the effect of a click on the button
        Q_EMIT menu->aboutToShow();
    };
    open();
    if (!QTest::qWaitFor([] { return !platform::Background::isUnderWay(); }, 10'000))
        qFatal("the presets are not read");
    open();
    for (QAction *action : menu->actions()) {
        if (action->text().remove(u'&') == text)
            return action;
    }
    qFatal("there is no preset");
}

void measurePreset(PrintWindow &window)
{
    QMap<QString, QString> options;
    for (int option = 0; option < 20; ++option)
        options.insert(QString::fromLatin1(largePpdOption(option * 7)), u"C01"_s);
    PrintError error;
    if (!PresetStore().save(u"office"_s, {u"bench"_s, options}, &error))
        qFatal("%s", qPrintable(error.message));
    std::vector<double> applied;
    for (int round = 0; round < rounds; ++round) {
        auto *button = window.findChild<QPushButton *>(u"presets"_s);
        button->setFocus(); // creates the menu
        QAction *action = presetAction(button->menu(), u"bench"_s);
        applied.push_back(millisecondsOf([&] { action->trigger(); }));
        if (window.session()->ppd()->markedChoice(QString::fromLatin1(largePpdOption(7))) != u"C01")
            qFatal("the preset was not applied");
        undo(window);
        paint();
    }
    report("preset of 20 options, 20,000 constraints", median(applied), "ms", frame);
}

void measureSearch(PrintWindow &window)
{
    std::vector<double> strokes;
    for (int round = 0; round < rounds; ++round) {
        press(window, Qt::Key_F, Qt::ControlModifier);
        QLineEdit *field = window.findChild<SearchBar *>()->field();
        field->selectAll();
        for (const char c : {'o', 'p', 't', '1', '2'})
            strokes.push_back(millisecondsOf([&] { QTest::keyClick(field, c); }));
        if (!window.findChild<SearchBar *>()->results()->isVisible())
            qFatal("the search finds nothing");
        QTest::keyClick(field, Qt::Key_Escape);
        paint();
    }
    report("key stroke in the search, 200 options", median(strokes), "ms", frame);
}

void measureLargePpd()
{
    FamilyPrintSystem system(largePpdFile(largePpdConstraints));
    Extensions none{{}};
    const auto window = openWindow(system, none, u"more"_s);
    if (!QTest::qWaitForWindowActive(window.get()))
        qFatal("the window does not appear");
    const QString last = QString::fromLatin1(largePpdOption(largePpdOptions - 1));
    if (!QTest::qWaitFor([&] { return boxOf(*window, last) && !platform::Background::isUnderWay(); }, 30'000))
        qFatal("the page of options is not completed");
    measureChanges(*window);
    measurePreset(*window);
    measureSearch(*window);
}

void measureQueues()
{
    FamilyPrintSystem system;
    for (int queue = 1; queue < queues; ++queue) {
        Destination printer = officePrinter(u"q%1"_s.arg(queue));
        printer.info = u"Copier %1"_s.arg(queue);
        printer.location = u"Floor %1"_s.arg(queue % 40);
        system.printers.append(printer);
    }
    Extensions extensions(Extensions::installedBundles(buildPath("/bin")));
    const auto window = openWindow(system, extensions, {});
    report("longest time without events while 10,000 printers are listed",
           longestGap([&] { Q_EMIT window->findChild<PrinterPicker *>()->listOutdated(); }), "ms", gapGoal);
    auto *box = window->findChild<PrinterBox *>();
    if (box->count() != queues)
        qFatal("%d printers are listed", box->count());
    report("list of 10,000 printers opened", millisecondsOf([&] { box->showPopup(); }), "ms", gapGoal);
    std::vector<double> strokes;
    for (const char c : {'f', 'l', 'o', 'o', 'r', ' ', '3', '9'})
        strokes.push_back(millisecondsOf([&] { QTest::keyClick(box->searchField(), c); }));
    report("key stroke in the search of 10,000 printers", median(strokes), "ms", frame);
    box->hidePopup();
}

double residentKilobytes()
{
    QFile rollup(u"/proc/self/smaps_rollup"_s);
    if (!rollup.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : rollup.readAll().split('\n')) {
        if (line.startsWith("Rss:"))
            return line.mid(4).trimmed().split(' ').first().toDouble();
    }
    return 0;
}

void measureGrowth(int dialogs)
{
    const int warm = dialogs / 5; // caches and the heap have reached their size then
    FamilyPrintSystem system;
    Extensions extensions(Extensions::installedBundles(buildPath("/bin")));
    double before = 0;
    for (int dialog = 0; dialog < dialogs; ++dialog) {
        const auto window = openWindow(system, extensions, u"com.kelmar.pde.print-mode"_s);
        paint();
        if (dialog == warm)
            before = residentKilobytes();
    }
    report("memory for each of 1,000 dialogs in one process",
           std::max(0.0, residentKilobytes() - before) / (dialogs - warm), "kB", growthGoal);
}

} // namespace

int main(int argc, char **argv)
{
    const QTemporaryDir folder;
    for (const char *variable : {"HOME", "CUPS_SERVERROOT", "XDG_STATE_HOME", "XDG_CONFIG_HOME"})
        qputenv(variable, folder.path().toLocal8Bit());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("CUPS_SERVER", "/nowhere");
    QApplication application(argc, argv);
    QCoreApplication::setOrganizationName(u"kelmar-bench"_s);
    measureLargePpd();
    measureQueues();
    measureGrowth(argc > 1 ? std::atoi(argv[1]) : 1000);
    return missed ? EXIT_FAILURE : EXIT_SUCCESS;
}
