// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/print_system.h"
#include "platform/background.h"
#include "tests/integration/batch_program.h"

#include <QTest>

#include <cups/cups.h>

using namespace host;
using namespace Qt::StringLiterals;

// The printers of a real print server, with the queue of the dialog among them.
class PrinterListTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void queueOfTheDialogIsNoPrinter();
    void listIsThatOfLibcups();

private:
    PrivateCupsd m_server;
};

void PrinterListTest::initTestCase()
{
    if (const QString missing = PrivateCupsd::missing(); !missing.isEmpty())
        QSKIP(qPrintable(missing));
    qputenv("KELMAR_DIALOG_BACKEND", buildPath("/backend/kelmar-dialog").toUtf8());
    QVERIFY2(m_server.start(), qPrintable(m_server.problem()));
    m_server.provideHome();
    const QString ppd = buildPath("/ppds/kelm880.ppd");
    for (const QString &queue : {u"office"_s, u"paused"_s, u"rejecting"_s})
        QVERIFY2(m_server.addQueue(queue, ppd), qPrintable(m_server.problem()));
    QVERIFY2(m_server.addQueue(u"other"_s, {}), qPrintable(m_server.problem()));
    QVERIFY2(
        m_server.addQueue(u"dialog"_s, buildPath("/packaging/queue/kelmar-dialog.ppd"), u"kelmar-dialog:/"_s),
        qPrintable(m_server.problem()));
    QVERIFY(m_server.setDefaultQueue(u"dialog"_s));
    QVERIFY(m_server.setPaused(u"paused"_s, true));
    QVERIFY(m_server.setAccepting(u"rejecting"_s, false));
}

void PrinterListTest::queueOfTheDialogIsNoPrinter()
{
    CupsPrintSystem system;
    PrintError error;
    const auto all = system.destinations(&error);
    QVERIFY(all && !all->isEmpty());
    for (const Destination &destination : *all)
        QVERIFY(destination.queue != u"dialog"_s);
    QVERIFY(!system.destination(QString(), &error));
    QVERIFY(!system.destination(u"dialog"_s, &error));
    QVERIFY2(error.message.contains(u"opens the print dialog"_s), qPrintable(error.message));
}

// libcups would use a separate connection with its own time-outs.
void PrinterListTest::listIsThatOfLibcups()
{
    write(m_server, u".cups/lpoptions"_s,
          "Dest other/large PageSize=A3\n# Dest paused/no a=b\nDest office sides=one-sided\n"
          "Default office/Two\\#sided sides=two-sided-long-edge\nDest gone/small copies=1\n"
          "Dest OFFICE/two\\#sided copies=2\nDest other/large copies=3\n");
    const auto collect = [](void *list, unsigned, cups_dest_t *record) {
        QStringList facts{QString::fromUtf8(record->name), QString::fromUtf8(record->instance)};
        for (const char *name : {"printer-info", "printer-location", "printer-make-and-model", "device-uri",
                                 "printer-uri-supported"})
            facts.append(QString::fromUtf8(cupsGetOption(name, record->num_options, record->options)));
        const auto is = [&](const char *name, const char *value) {
            return qstrcmp(cupsGetOption(name, record->num_options, record->options), value) == 0;
        };
        if (!facts.at(5).startsWith(u"kelmar-dialog:"_s))
            static_cast<QStringList *>(list)->append(
                (facts << QString::number(is("printer-is-accepting-jobs", "true"))
                       << QString::number(is("printer-state", "5")))
                    .join(u'|'));
        return 1;
    };
    // On a separate thread, where libcups determines the home folder again.
    const auto expected = platform::callOnWorker(
        [&collect] {
            QStringList list;
            cupsEnumDests(CUPS_DEST_FLAGS_NONE, 0, nullptr, 0, CUPS_PRINTER_DISCOVERED, collect, &list);
            list.sort();
            return list;
        },
        std::chrono::seconds(10));
    QVERIFY(expected);
    PrintError error;
    const auto all = CupsPrintSystem().destinations(&error);
    QVERIFY2(all, qPrintable(error.message));
    QStringList listed;
    for (const Destination &d : *all)
        listed.append(QStringList{d.queue, d.instance, d.info, d.location, d.makeAndModel, d.deviceUri,
                                  d.printerUri, QString::number(d.accepting), QString::number(d.stopped)}
                          .join(u'|'));
    listed.sort();
    QCOMPARE(listed.join(u'\n'), expected->join(u'\n'));
}

QTEST_MAIN(PrinterListTest)
#include "printer_list_test.moc"
