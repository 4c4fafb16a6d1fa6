// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/print_window.h"
#include "host/window/printers/printer_box.h"
#include "host/window/printers/printer_list.h"
#include "tests/support/heartbeat.h"
#include "tests/support/paths.h"
#include "tests/support/private_bonjour.h"
#include "tests/support/private_cupsd.h"

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

} // namespace

// A printer that announces itself through a real avahi-daemon in a private network.
class NetworkPrintersTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void foundWhenTheListIsOpenedAndPrints();

private:
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
    qputenv("HOME", m_server.folder().toLocal8Bit());
    QVERIFY2(m_server.addQueue(u"office"_s, {}), qPrintable(m_server.problem()));
    QString error;
    m_printer = startChildProcess(u"ippeveprinter"_s,
                                  {u"-p"_s, u"8633"_s, u"-n"_s, u"orb-m880.local"_s, u"-f"_s,
                                   u"application/pdf"_s, u"-d"_s, m_server.folder(), u"-v"_s, u"Attic"_s},
                                  "printer-uri", &error);
    if (!m_printer)
        QSKIP(qPrintable(error));
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
    window.print();
    QTRY_VERIFY_WITH_TIMEOUT(window.submission() && window.submission()->isAccepted(), 15'000);
    const auto job = m_server.waitForJob(window.submission()->job.id);
    QVERIFY(job);
    QVERIFY2(job->deviceUri.contains(u":8633/ipp/print"_s), qPrintable(job->deviceUri));
    QVERIFY2(heart.longestGap() < longestGap, qPrintable(QString::number(heart.longestGap())));
}

QTEST_MAIN(NetworkPrintersTest)
#include "network_printers_test.moc"
