// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/printers/printer_box.h"
#include "host/window/printers/printer_list.h"
#include "host/window/printers/printer_picker.h"
#include "tests/host/host_fixture.h"
#include "tests/support/thread_clock.h"

#include <QAccessible>
#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace host;

class PrinterBoxTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void findsEveryWordAnywhere();
    void putsRecentOnesFirst();
    void staysQuickWithManyPrinters();
    void recentOnesWaitForTheList();
    void printerThatIsGoneLeaves();
    void printerOutlivesItsPreset();
    void chosenPrinterIsShown_data();
    void chosenPrinterIsShown();
    void reportsAreShown();
    void printersAreAddedInTheDesktopsSettings_data();
    void printersAreAddedInTheDesktopsSettings();

private:
    static QList<Destination> building()
    {
        QList<Destination> printers;
        for (int i = 0; i < 700; ++i) {
            Destination printer = officePrinter(QStringLiteral("q%1").arg(i));
            printer.info = QStringLiteral("Copier %1").arg(i);
            printer.location = QStringLiteral("Floor %1, Room %2").arg(i / 100).arg(i);
            printers.append(printer);
        }
        return printers;
    }
};

void PrinterBoxTest::findsEveryWordAnywhere()
{
    PrinterList list;
    list.setPrinters(building());
    PrinterBox box(&list);
    box.show();
    QSignalSpy activated(&box, &QComboBox::activated);
    box.showPopup();
    QTest::keyClicks(box.searchField(), QStringLiteral("room 655"));
    QCOMPARE(box.listView()->model()->rowCount(), 1);
    const QString read =
        QAccessible::queryAccessibleInterface(box.listView())->child(0)->text(QAccessible::Name);
    QVERIFY2(read.startsWith(QStringLiteral("Copier 655, Ready, Floor 6, Room 655")), qPrintable(read));
    QTest::keyClicks(box.searchField(), QStringLiteral(" q655 COPIER"));
    QTest::keyClick(box.searchField(), Qt::Key_Return);
    QCOMPARE(activated.count(), 1);
    QCOMPARE(list.at(box.currentIndex()).queue, QStringLiteral("q655"));
    QVERIFY(!box.searchField()->isVisible());

    box.showPopup();
    QVERIFY(box.searchField()->text().isEmpty());
    QTest::keyClick(box.searchField(), Qt::Key_Down);
    QTest::keyClick(box.searchField(), Qt::Key_Return);
    QCOMPARE(list.at(box.currentIndex()).queue, QStringLiteral("q656"));
    box.showPopup();
    QTest::keyClicks(box.searchField(), QStringLiteral("nothing like this"));
    QTest::keyClick(box.searchField(), Qt::Key_Return);
    QTest::keyClick(box.searchField(), Qt::Key_Escape);
    QCOMPARE(activated.count(), 2);
}

void PrinterBoxTest::putsRecentOnesFirst()
{
    PrinterList list;
    list.setPrinters(building());
    list.setRecent({QStringLiteral("q9"), QStringLiteral("gone"), QStringLiteral("q3")});
    QCOMPARE(list.at(0).queue, QStringLiteral("q9"));
    QCOMPARE(list.at(1).queue, QStringLiteral("q3"));
    QCOMPARE(list.at(2).queue, QStringLiteral("q0"));

    PrinterBox box(&list);
    box.setCurrentIndex(1);
    Destination moved = list.at(0);
    moved.stopped = true;
    QCOMPARE(list.put(moved), 0);
    QVERIFY(list.at(0).stopped);
    QCOMPARE(list.put(officePrinter(QStringLiteral("found"))), 700);
    QCOMPARE(box.currentIndex(), 1);
}

void PrinterBoxTest::staysQuickWithManyPrinters()
{
    PrinterList list;
    PrinterBox box(&list);
    box.show();
    const ThreadClock clock;
    list.setPrinters(building());
    box.showPopup();
    QTest::keyClicks(box.searchField(), QStringLiteral("floor 6"));
    QCoreApplication::processEvents();
    const qint64 taken = clock.milliseconds();
    QVERIFY2(taken < 1000, qPrintable(QString::number(taken)));
}

// No row moves under the pointer, or while the user is choosing.
void PrinterBoxTest::recentOnesWaitForTheList()
{
    PrinterPicker picker;
    picker.setCurrent(officePrinter(QStringLiteral("q1")));
    picker.setPrinters(building());
    auto *box = picker.findChild<PrinterBox *>();
    QSignalSpy picked(&picker, &PrinterPicker::picked);
    box->showPopup();
    picker.setRecent({QStringLiteral("q9"), QStringLiteral("q1")});
    QCOMPARE(box->currentIndex(), 1);
    QTest::keyClick(box->searchField(), Qt::Key_Down);
    QTest::keyClick(box->searchField(), Qt::Key_Return);
    QCOMPARE(picked.takeFirst().value(0).toString(), QStringLiteral("q2"));
    QCOMPARE(box->currentText(), QStringLiteral("Copier 2"));
    QCOMPARE(box->itemText(0), QStringLiteral("Copier 9"));
    QCOMPARE(box->itemText(1), QStringLiteral("Copier 1"));
}

void PrinterBoxTest::printerThatIsGoneLeaves()
{
    PrinterPicker picker;
    picker.setAwaited(QStringLiteral("gone"));
    picker.setPrinters(building());
    auto *box = picker.findChild<PrinterBox *>();
    QSignalSpy picked(&picker, &PrinterPicker::picked);
    box->showPopup();
    QTest::keyClicks(box->searchField(), QStringLiteral("gone"));
    QCOMPARE(box->listView()->model()->rowCount(), 1);
    QTest::keyClick(box->searchField(), Qt::Key_Return);
    box->hidePopup();
    QCOMPARE(picked.count(), 0);
    QCOMPARE(box->currentText(), QStringLiteral("gone"));
    picker.setAwaited(QStringLiteral("q3")); // another one was selected
    QCOMPARE(box->count(), 700);
    QCOMPARE(box->currentText(), QStringLiteral("Copier 3"));
}

void PrinterBoxTest::printerOutlivesItsPreset()
{
    PrinterPicker picker;
    const auto *box = picker.findChild<QComboBox *>();
    Destination preset = officePrinter();
    preset.instance = QStringLiteral("draft");
    picker.setCurrent(preset);
    picker.setPrinters({officePrinter(), officePrinter(QStringLiteral("other"))});
    picker.putPrinter(preset); // a reply to an earlier request
    QCOMPARE(box->count(), 2);
    QCOMPARE(box->currentText(), officePrinter().displayName());
}

void PrinterBoxTest::chosenPrinterIsShown_data()
{
    using Step = std::function<void(PrinterPicker *)>;
    QTest::addColumn<QList<Step>>("steps");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("detail"); // its beginning
    const QString office = officePrinter().info;
    Destination stopped = officePrinter();
    stopped.stopped = true;
    const Step list = [](auto *picker) { picker->setPrinters(building()); };
    const Step with = [=](auto *picker) { picker->setPrinters(building() << stopped); };
    const Step await = [](auto *picker) { picker->setAwaited(QStringLiteral("office")); };
    const Step choose = [](auto *picker) { picker->setCurrent(officePrinter()); };
    const Step fix = [](auto *picker) { picker->setFixedText(QStringLiteral("x.ppd")); };
    const Step found = [](auto *picker) { picker->putFound(officePrinter(QStringLiteral("found"))); };
    const QString unknown = QStringLiteral("State not known");
    QTest::newRow("asked for") << QList<Step>{await} << QStringLiteral("office") << unknown;
    QTest::newRow("asked for, known") << QList<Step>{with, await} << office << QStringLiteral("Stopped");
    QTest::newRow("asked for, not listed") << QList<Step>{await, list} << QStringLiteral("office") << unknown;
    QTest::newRow("asked for, listed") << QList<Step>{await, with} << office << QStringLiteral("Stopped");
    QTest::newRow("chosen, not listed") << QList<Step>{choose, list} << office << unknown;
    QTest::newRow("chosen, listed") << QList<Step>{choose, with} << office << QStringLiteral("Stopped");
    QTest::newRow("fixed, list late")
        << QList<Step>{await, fix, list, found} << QStringLiteral("x.ppd") << unknown;
}

void PrinterBoxTest::chosenPrinterIsShown()
{
    QFETCH(QList<std::function<void(PrinterPicker *)>>, steps);
    PrinterPicker picker;
    const auto *box = picker.findChild<QComboBox *>();
    for (const auto &step : steps)
        step(&picker);
    QTEST(box->currentText(), "name");
    QFETCH(QString, detail);
    const QString shown = box->currentData(PrinterList::DetailRole).toString();
    QVERIFY2(shown.startsWith(detail), qPrintable(shown));
}

void PrinterBoxTest::reportsAreShown()
{
    PrinterPicker picker;
    const auto *box = picker.findChild<QComboBox *>();
    Destination printer = officePrinter();
    printer.isStateKnown = true;
    printer.problem = QStringLiteral("The toner is running low.");
    printer.supplies = {
        {QStringLiteral("Cyan"), 80, false}, {QStringLiteral("Black"), 7, true}, {QStringLiteral("Drum")}};
    printer.report = {{},
                      {{QStringLiteral("Upper tray"), 40}},
                      {{QStringLiteral("tray-1"), {}, QStringLiteral("A4"), 210, 297}, {}},
                      QDateTime(QDate(2026, 5, 4), QTime(13, 5))};
    picker.setCurrent(printer);
    const QString said = box->accessibleDescription();
    QVERIFY2(said.startsWith(QStringLiteral("Ready · The toner is running low. · Black 7 %")),
             qPrintable(said));
    for (const char *line : {"Cyan 80 %", "Black 7 %", "Drum: level not known", "Upper tray 40 %",
                             "Tray 1: A4", "Reported by the printer at 13:05"})
        QVERIFY2(box->toolTip().contains(QLatin1String(line)), qPrintable(box->toolTip()));
    for (const char *part : {"Cyan 80 %", "Drum: level not known", "Upper tray 40 %", "Tray 1: A4"})
        QVERIFY2(said.contains(QLatin1String(part)), qPrintable(said));
    printer.report.time = printer.report.time.addSecs(60); // is no news for a screen reader
    picker.putPrinter(printer);
    QCOMPARE(box->accessibleDescription(), said);
    picker.putPrinter(printer.withoutState());
    QVERIFY(!box->toolTip().contains(QStringLiteral("Black")));
}

void PrinterBoxTest::printersAreAddedInTheDesktopsSettings_data()
{
    QTest::addColumn<QString>("desktop");
    QTest::addColumn<QStringList>("programs"); // that are installed
    QTest::addColumn<QString>("called");       // with its arguments; empty if adding is not offered
    const QString gnome = QStringLiteral("gnome-control-center"), kde = QStringLiteral("systemsettings"),
                  other = QStringLiteral("system-config-printer");
    QTest::newRow("GNOME") << QStringLiteral("ubuntu:GNOME") << QStringList{gnome, kde, other}
                           << QStringLiteral("gnome-control-center printers");
    QTest::newRow("KDE") << QStringLiteral("KDE") << QStringList{gnome, kde, other}
                         << QStringLiteral("systemsettings kcm_printer_manager");
    QTest::newRow("another desktop") << QStringLiteral("XFCE") << QStringList{gnome, kde, other}
                                     << QStringLiteral("system-config-printer ");
    QTest::newRow("settings of other desktops")
        << QStringLiteral("XFCE") << QStringList{gnome, kde} << QString();
    QTest::newRow("none") << QStringLiteral("GNOME") << QStringList() << QString();
}

void PrinterBoxTest::printersAreAddedInTheDesktopsSettings()
{
    QFETCH(QString, desktop);
    QFETCH(QStringList, programs);
    QFETCH(QString, called);
    const QTemporaryDir folder;
    const QString calls = folder.filePath(QStringLiteral("calls"));
    QVERIFY(QDir(folder.path()).mkpath(QStringLiteral("data/applications")));
    programs.append(QStringLiteral("data/applications/kcm_printer_manager.desktop"));
    for (const QString &program : std::as_const(programs)) {
        QFile file(folder.filePath(program));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("#!/bin/sh\necho \"${0##*/} $*\" >" + calls.toUtf8() + ".new\n/bin/mv " + calls.toUtf8() +
                   ".new " + calls.toUtf8() + "\n");
        file.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    }
    const QByteArray path = qgetenv("PATH"), data = qgetenv("XDG_DATA_HOME");
    const auto restore = qScopeGuard([&] {
        qputenv("PATH", path);
        qputenv("XDG_DATA_HOME", data);
    });
    qputenv("PATH", folder.path().toUtf8());
    qputenv("XDG_CURRENT_DESKTOP", desktop.toUtf8());
    qputenv("XDG_DATA_HOME", folder.filePath(QStringLiteral("data")).toUtf8());
    PrinterPicker picker;
    QSignalSpy outdated(&picker, &PrinterPicker::listOutdated);
    picker.setCurrent(officePrinter());
    picker.offerToAdd();
    picker.show();
    auto *box = picker.findChild<PrinterBox *>();
    box->showPopup();
    QCOMPARE(box->addButton() != nullptr, !called.isEmpty());
    if (called.isEmpty())
        return;
    QTest::keyClick(box->addButton(), Qt::Key_Space);
    QVERIFY(!box->isPopupShown());
    QTRY_VERIFY(QFile::exists(calls));
    QFile file(calls);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(QString::fromUtf8(file.readAll()).chopped(1), called);
    for (int i = 0; i < 2; ++i) { // only after the settings
        QEvent activated(QEvent::WindowActivate);
        QCoreApplication::sendEvent(&picker, &activated);
    }
    QCOMPARE(outdated.count(), 1);
}

QTEST_MAIN(PrinterBoxTest)
#include "printer_box_test.moc"
