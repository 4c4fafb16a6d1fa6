// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/pages/page_book.h"
#include "host/window/print_window.h"
#include "host/window/printers/printer_box.h"
#include "host/window/printers/printer_list.h"
#include "platform/choice_box.h"
#include "tests/support/delayed_rows.h"
#include "tests/support/heartbeat.h"
#include "tests/support/paths.h"
#include "tests/support/private_bonjour.h"
#include "tests/support/private_cupsd.h"
#include "tests/support/simulated_printer.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace host;
using namespace Qt::StringLiterals;

namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr qint64 longestGap = 1500; // milliseconds
#else
constexpr qint64 longestGap = 100;
#endif

// The options of the printer in driverless_printer.conf, as shown in the window.
struct Offer
{
    const char *option;
    const char *label;
    const char *choices;
    const char *typed; // selects a choice
    const char *sent;
};

constexpr Offer offers[] = {
    {"PageSize", "Media Size", "A3|A4", "A3", "A3"},
    {"MediaType", "Media Type", "Automatic|Plain Paper|Labels", "La", "Labels"},
    {"InputSlot", "Media Source", "Automatic|Tray 1|Bypass Tray", "By", "ByPassTray"},
    {"Duplex", "Two-Sided Printing", "Off|Long Edge|Short Edge", "Lo", "DuplexNoTumble"},
    {"cupsPrintQuality", "Print Quality", "Draft|Normal|High", "Hi", "High"},
    {"ColorModel", "Color Mode", "Grayscale|Color", "Gr", "Gray"},
    {"OutputBin", "Output Tray", "Face Down|Face Up", "Face U", "FaceUp"},
    {"StapleLocation", "Staple", "None|One, Top Left|Two, Left", "Tw", "DualPortrait"},
};

// The settings of the Print Mode page. The summary hides them.
constexpr std::pair<const char *, const char *> secrets[] = {
    {"job-password", "4711"}, {"job-account-id", "Sales"}, {"job-accounting-user-id", "4711-2"}};

} // namespace

// A printer that announces itself through a real avahi-daemon in a private network.
class NetworkPrintersTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void foundWhenTheListIsOpenedAndPrints();
    void levelsAreReadWithSnmp();

private:
    static void chooseOffered(PrintWindow *window);
    static void givePassword(PrintWindow *window);

    PrivateBonjour m_bonjour;
    ChildProcess m_printer;
    PrivateCupsd m_server;
};

void NetworkPrintersTest::initTestCase()
{
    if (const QString missing = PrivateCupsd::missing(); !missing.isEmpty())
        QSKIP(qPrintable(missing));
    const QString names = u" localhost orb-m880.local orb-m880.local.\n"_s;
    const QString whyNot = m_bonjour.start(u"127.0.0.1"_s + names + u"::1"_s + names);
    if (!whyNot.isNull())
        QSKIP(qPrintable(whyNot));
    QVERIFY2(m_server.start(), qPrintable(m_server.problem()));
    m_server.provideHome();
    QVERIFY2(m_server.addQueue(u"office"_s, {}), qPrintable(m_server.problem()));
    QString error;
    m_printer = startChildProcess(u"ippeveprinter"_s,
                                  {u"-p"_s, u"8633"_s, u"-n"_s, u"orb-m880.local"_s, u"-a"_s,
                                   sourcePath("/tests/integration/driverless_printer.conf"), u"-d"_s,
                                   m_server.folder(), u"-v"_s, u"Attic"_s},
                                  "printer-uri", &error);
    if (!m_printer)
        QSKIP(qPrintable(error));
}

void NetworkPrintersTest::chooseOffered(PrintWindow *window)
{
    for (const Offer &offer : offers) {
        const QString option = QLatin1String(offer.option);
        auto *box = window->book()->findChild<platform::ChoiceBox *>(option);
        for (int row = 0; !(box && box->isVisible()) && row < 3; ++row) {
            window->book()->showPage(row);
            box = window->book()->findChild<platform::ChoiceBox *>(option);
        }
        QVERIFY2(box, offer.option);
        QCOMPARE(box->accessibleName(), QLatin1String(offer.label));
        QStringList choices;
        for (int i = 0; i < box->count(); ++i)
            choices.append(box->itemText(i));
        QCOMPARE(choices.join(u'|'), QLatin1String(offer.choices));
        QTRY_VERIFY(box->isVisible() && box->isEnabled());
        QTest::keyClicks(box, QLatin1String(offer.typed));
        QCOMPARE(box->currentData().toString(), QLatin1String(offer.sent));
        QCOMPARE(window->session()->ppd()->markedChoice(option), QLatin1String(offer.sent));
        QCoreApplication::processEvents(); // measures each action separately
    }
}

void NetworkPrintersTest::givePassword(PrintWindow *window)
{
    window->book()->showPage(window->book()->pageNamed(u"print-mode"_s));
    QCoreApplication::processEvents();
    for (const auto &[name, value] : secrets) {
        auto *field = window->book()->findChild<QLineEdit *>(QLatin1String(name));
        QVERIFY2(field && field->isVisible(), name);
        QTest::keyClicks(field, QLatin1String(value));
        QCoreApplication::processEvents();
    }
    for (const SummarySection &section : window->session()->summary()) {
        for (const SummaryEntry &entry : section.entries)
            QVERIFY2(!entry.second.contains(u"4711"_s), qPrintable(entry.second));
    }
}

void NetworkPrintersTest::foundWhenTheListIsOpenedAndPrints()
{
    CupsPrintSystem system;
    Extensions none({});
    PrintTask task;
    task.files = {sourcePath("/demo/report.pdf")};
    task.printer = u"office"_s;
    Heartbeat heart;
    PrintWindow window(system, none, task);
    PrintError error;
    QVERIFY(window.open(&error));
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    window.finishLater();
    QTRY_VERIFY(window.session());
    auto *box = window.findChild<PrinterBox *>();
    QTest::mouseClick(box, Qt::LeftButton);
    QTRY_VERIFY(QApplication::activePopupWidget());
    QTRY_COMPARE_WITH_TIMEOUT(box->count(), 2, 15'000);
    QVERIFY(box->itemData(1, PrinterList::DetailRole).toString().startsWith(u"Found on the network"_s));

    QTest::keyClicks(box->searchField(), u"attic"_s);
    QTest::keyClick(box->searchField(), Qt::Key_Return);
    QTRY_COMPARE_WITH_TIMEOUT(window.session()->destination().queue, u"Attic"_s, 20'000);
    QVERIFY(window.session()->ppd()); // created by the server from the printer's attributes
    chooseOffered(&window);
    givePassword(&window);
    if (QTest::currentTestFailed())
        return;
    for (const char *line : {"Cyan 80 %", "Black 7 %", "Upper 40 %", "Tray 1: A4"})
        QTRY_VERIFY2(box->toolTip().contains(QLatin1String(line)), qPrintable(box->toolTip()));
    QTRY_VERIFY(window.findChild<MessageBar *>()->isShowing());
    QCOMPARE(window.findChild<MessageBar *>()->text(),
             u"Paper not loaded in the printer\nNothing is loaded in “Bypass Tray”."_s);
    window.print();
    QTRY_VERIFY_WITH_TIMEOUT(window.submission() && window.submission()->isAccepted(), 15'000);
    const auto job = m_server.waitForJob(window.submission()->job.id);
    QVERIFY(job);
    QVERIFY2(job->deviceUri.contains(u":8633/ipp/print"_s), qPrintable(job->deviceUri));
    const QStringList sent = job->optionText.split(u' '); // cupsParseOptions() drops cupsPrintQuality
    for (const Offer &offer : offers)
        QVERIFY2(sent.contains(u"%1=%2"_s.arg(QLatin1String(offer.option), QLatin1String(offer.sent))),
                 qPrintable(job->optionText));
    for (const auto &[name, value] : secrets)
        QVERIFY2(sent.contains(u"%1=%2"_s.arg(QLatin1String(name), QLatin1String(value))),
                 qPrintable(job->optionText));
    QVERIFY(window.submission()->job.differences.isEmpty());
    DelayedRows::check(heart.longestGap(), longestGap, "the window did not answer");
}

// The print server reports no levels of such a printer.
void NetworkPrintersTest::levelsAreReadWithSnmp()
{
    const SimulatedPrinter device("127.0.0.3", "[objects]\n"
                                               "1.3.6.1.2.1.43.11.1.1.6.1.1 = string Black Toner\n"
                                               "1.3.6.1.2.1.43.11.1.1.8.1.1 = integer 1200\n"
                                               "1.3.6.1.2.1.43.11.1.1.9.1.1 = integer 144\n"
                                               "1.3.6.1.2.1.43.8.2.1.9.1.1 = integer 500\n"
                                               "1.3.6.1.2.1.43.8.2.1.10.1.1 = integer 250\n"
                                               "1.3.6.1.2.1.43.8.2.1.12.1.1 = string iso_a4_210x297mm\n"
                                               "1.3.6.1.2.1.43.8.2.1.13.1.1 = string Tray 1\n");
    QVERIFY2(device.isRunning(), qPrintable(device.error()));
    QVERIFY2(m_server.addQueue(u"cellar"_s, {}, u"socket://127.0.0.3"_s), qPrintable(m_server.problem()));
    CupsPrintSystem system;
    Extensions none({});
    PrintTask task;
    task.printer = u"cellar"_s;
    Heartbeat heart;
    PrintWindow window(system, none, task);
    PrintError error;
    QVERIFY(window.open(&error));
    window.show();
    window.finishLater();
    auto *box = window.findChild<PrinterBox *>();
    for (const char *line : {"Black Toner 12 %", "Tray 1 (A4) 50 %"})
        QTRY_VERIFY2(box->toolTip().contains(QLatin1String(line)), qPrintable(box->toolTip()));
    DelayedRows::check(heart.longestGap(), longestGap, "the window did not answer");
}

int main(int argc, char **argv)
{
    return DelayedRows::exec<NetworkPrintersTest>(argc, argv);
}

#include "network_printers_test.moc"
