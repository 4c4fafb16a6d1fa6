// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/message_bar.h"
#include "host/window/print_window.h"
#include "host/window/result_page.h"
#include "tests/support/private_cupsd.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPushButton>
#include <QTest>

#include <fcntl.h>

using namespace host;
using namespace Qt::StringLiterals;

namespace {

const QString program = QStringLiteral(KELMAR_BINARY_DIR "/bin/kelmar-print");
const QString document = QStringLiteral(KELMAR_SOURCE_DIR "/demo/report.pdf");

struct Outcome
{
    int code = -1;
    QJsonObject json;
    QByteArray errors;
};

} // namespace

// The program as a script calls it, and the window, against a real print server.
class PrintJobTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void privateJobArrivesWhole();
    void balanceIsResetWithMonochrome();
    void conflictStopsUnlessResolved();
    void presetOfTheUserCounts();
    void standardInputIsPrinted();
    void otherMakersPrinter();
    void refusals_data();
    void refusals();
    void pausedPrinterKeepsTheJob();
    void serverStoppedBehindAnOpenDialog();
    void documentOfAnApplicationIsSent();
    void queueOfTheDialogIsNoPrinter();

private:
    Outcome run(const QStringList &words, const QByteArray &input = {});
    // Runs a batch job that must succeed, and gives what reached the printer.
    std::optional<CapturedJob> print(const QStringList &words, const QByteArray &input = {});

    PrivateCupsd m_server;
};

void PrintJobTest::initTestCase()
{
    if (const QString missing = PrivateCupsd::missing(); !missing.isEmpty())
        QSKIP(qPrintable(missing));
    qputenv("KELMAR_DIALOG_BACKEND", KELMAR_BINARY_DIR "/backend/kelmar-dialog");
    QVERIFY2(m_server.start(), qPrintable(m_server.problem()));
    qputenv("HOME", m_server.folder().toLocal8Bit());
    const QString ppd = QStringLiteral(KELMAR_BINARY_DIR "/ppds/kelm880.ppd");
    for (const QString &queue : {u"office"_s, u"paused"_s, u"rejecting"_s})
        QVERIFY2(m_server.addQueue(queue, ppd), qPrintable(m_server.problem()));
    QVERIFY2(m_server.addQueue(u"other"_s, {}), qPrintable(m_server.problem()));
    QVERIFY(m_server.setDefaultQueue(u"office"_s));
    QVERIFY(m_server.setPaused(u"paused"_s, true));
    QVERIFY(m_server.setAccepting(u"rejecting"_s, false));
}

Outcome PrintJobTest::run(const QStringList &words, const QByteArray &input)
{
    QProcess process;
    process.start(program, words + QStringList(u"--json"_s));
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished())
        return {};
    return {process.exitCode(), QJsonDocument::fromJson(process.readAllStandardOutput()).object(),
            process.readAllStandardError()};
}

std::optional<CapturedJob> PrintJobTest::print(const QStringList &words, const QByteArray &input)
{
    const Outcome outcome = run(QStringList(u"--batch"_s) + words, input);
    if (outcome.code != 0)
        qWarning() << outcome.code << outcome.json << outcome.errors;
    const QJsonObject job = outcome.json[u"job"_s].toObject();
    if (!job[u"differences"_s].toArray().isEmpty())
        qWarning() << job;
    return outcome.code == 0 ? m_server.waitForJob(job[u"id"_s].toInt()) : std::nullopt;
}

void PrintJobTest::privateJobArrivesWhole()
{
    const auto job = print({u"--set"_s, u"PrintMode=Private"_s, u"--set"_s, u"privatePassword=12340"_s,
                            u"--set"_s, u"DeptCode=True"_s, u"--set"_s, u"departmentCode=01230"_s, u"-n"_s,
                            u"2"_s, u"-P"_s, u"1-2"_s, u"-o"_s, u"example-note=two words"_s, document});
    QVERIFY(job);
    const QString text = job->optionText;
    // Choices arrive as chosen, a Boolean too, and digits although 0 is the printer's default.
    const QStringList expected{u"PrintMode=Private"_s, u"DeptCode=True"_s,
                               u"DCDigit1=0"_s,        u"DCDigit2=1"_s,
                               u"DCDigit3=2"_s,        u"DCDigit4=3"_s,
                               u"DCDigit5=0"_s,        u"DINDigit1=1"_s,
                               u"DINDigit2=2"_s,       u"DINDigit3=3"_s,
                               u"DINDigit4=4"_s,       u"DINDigit5=0"_s,
                               u"page-ranges=1-2"_s,   u"example-note=two\\ words"_s};
    for (const QString &option : expected)
        QVERIFY2((u" "_s + text + u" "_s).contains(u" "_s + option + u" "_s),
                 qPrintable(option + u" in "_s + text));
    QCOMPARE(job->copies, 2);
    QCOMPARE(job->title, u"report.pdf"_s);
}

void PrintJobTest::balanceIsResetWithMonochrome()
{
    const Outcome outcome =
        run({u"--batch"_s, u"--set"_s, u"ColorBalanceCyan=3"_s, u"--set"_s, u"SharpnessVRN=2"_s, u"--set"_s,
             u"ColorType=Mono"_s, u"--set"_s, u"ColorType=Color"_s, document});
    QCOMPARE(outcome.code, 0);
    const QByteArray notices = QJsonDocument(outcome.json[u"notices"_s].toArray()).toJson();
    QVERIFY2(notices.contains("Cyan Balance"), notices.constData());
    const auto job = m_server.waitForJob(outcome.json[u"job"_s][u"id"_s].toInt());
    QVERIFY(job);
    for (const char *colour : {"Cyan", "Magenta", "Yellow", "Black"})
        QCOMPARE(job->options.value(u"ColorBalance"_s + QLatin1String(colour)), u"0"_s);
    QCOMPARE(job->options.value(u"SharpnessVRN"_s), u"2"_s);
    QCOMPARE(job->options.value(u"ColorType"_s), u"Color"_s);
}

void PrintJobTest::conflictStopsUnlessResolved()
{
    const QStringList words{u"--set"_s, u"ColorType=Mono"_s, u"--set"_s, u"ColorBalanceCyan=3"_s, document};
    const Outcome refused = run(QStringList(u"--batch"_s) + words);
    QCOMPARE(refused.code, 3);
    QCOMPARE(refused.json[u"error"_s][u"conflicts"_s][0].toArray().size(), 2);
    const auto job = print(QStringList(u"--resolve"_s) + words);
    QVERIFY(job);
    QVERIFY(job->options.value(u"ColorType"_s) != u"Mono"_s ||
            job->options.value(u"ColorBalanceCyan"_s) == u"0"_s);
}

void PrintJobTest::presetOfTheUserCounts()
{
    const QDir home(m_server.folder());
    QVERIFY(home.mkpath(u".cups"_s));
    QFile options(home.filePath(u".cups/lpoptions"_s));
    QVERIFY(options.open(QIODevice::WriteOnly));
    options.write("Dest office/draft ColorType=Mono sides=two-sided-long-edge number-up=2\n");
    options.close();
    const auto job = print({u"-d"_s, u"office/draft"_s, document});
    QVERIFY(options.remove());
    QVERIFY(job);
    QCOMPARE(job->options.value(u"ColorType"_s), u"Mono"_s);
    QCOMPARE(job->options.value(u"Duplex"_s), u"DuplexNoTumble"_s);
    QCOMPARE(job->options.value(u"number-up"_s), u"2"_s);
}

void PrintJobTest::standardInputIsPrinted()
{
    QFile file(document);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const auto job = print({u"-d"_s, u"other"_s, u"-t"_s, u"From a pipe"_s, u"-"_s}, file.readAll());
    QVERIFY(job);
    QCOMPARE(job->title, u"From a pipe"_s);
    QVERIFY(!job->data.isEmpty());
}

void PrintJobTest::otherMakersPrinter()
{
    const auto job =
        print({u"-d"_s, u"other"_s, u"-n"_s, u"2"_s, u"-o"_s, u"sides=two-sided-long-edge"_s, document});
    QVERIFY(job);
    QCOMPARE(job->options.value(u"sides"_s), u"two-sided-long-edge"_s);
    QVERIFY(!job->optionText.contains(u"PrintMode"_s));
}

void PrintJobTest::refusals_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QString>("error");
    QTest::newRow("no such queue") << QStringList({u"-d"_s, u"nowhere"_s, document}) << u"no-such-printer"_s;
    QTest::newRow("rejecting queue") << QStringList({u"-d"_s, u"rejecting"_s, document})
                                     << u"queue-rejecting"_s;
    QTest::newRow("no such file") << QStringList(u"/nowhere.pdf"_s) << u"file-missing"_s;
    QTest::newRow("a program") << QStringList(program) << u"unsupported-format"_s;
    QTest::newRow("server away") << QStringList({u"-h"_s, u"/nowhere/cups.sock"_s, document})
                                 << u"server-away"_s;
}

void PrintJobTest::refusals()
{
    QFETCH(QStringList, words);
    QFETCH(QString, error);
    const QList<int> before = m_server.capturedJobs();
    const Outcome outcome = run(QStringList(u"--batch"_s) + words);
    QCOMPARE(outcome.code, 1);
    QCOMPARE(outcome.json[u"error"_s][u"code"_s].toString(), error);
    QVERIFY(!outcome.json[u"error"_s][u"message"_s].toString().isEmpty());
    QCOMPARE(m_server.capturedJobs(), before);
}

void PrintJobTest::pausedPrinterKeepsTheJob()
{
    const Outcome outcome = run({u"--batch"_s, u"-d"_s, u"paused"_s, document});
    QCOMPARE(outcome.code, 0);
    QVERIFY(outcome.json[u"job"_s][u"printerStopped"_s].toBool());
    QVERIFY(m_server.setPaused(u"paused"_s, false));
    QVERIFY(m_server.waitForJob(outcome.json[u"job"_s][u"id"_s].toInt()));
}

void PrintJobTest::serverStoppedBehindAnOpenDialog()
{
    CupsPrintSystem system;
    Extensions extensions(Extensions::installedBundles(QStringLiteral(KELMAR_BINARY_DIR "/bin")));
    PrintTask task;
    task.files = {document};
    task.printer = u"office"_s;
    PrintWindow window(system, extensions, task);
    PrintError error;
    QVERIFY(window.open(&error));
    window.show();
    QVERIFY(window.session()->panelCount() == 3);
    QVERIFY(window.session()->markChoice(u"Duplex"_s, u"DuplexNoTumble"_s));

    m_server.stop();
    window.print();
    QCOMPARE(window.messageBar()->kind(), MessageBar::Kind::Error);
    QVERIFY2(window.messageBar()->text().contains(u"cannot be reached"_s),
             qPrintable(window.messageBar()->text()));
    QVERIFY(!window.job());

    QVERIFY2(m_server.start(), qPrintable(m_server.problem()));
    window.print();
    QVERIFY2(window.job(), qPrintable(window.messageBar()->text()));
    const auto job = m_server.waitForJob(window.job()->id);
    QVERIFY(job);
    QCOMPARE(job->options.value(u"Duplex"_s), u"DuplexNoTumble"_s);
    QTRY_VERIFY_WITH_TIMEOUT(window.findChild<ResultPage *>()->text().contains(u"done"_s), 10000);
}

// As the service asks for it: the request on the input, the document as a descriptor.
void PrintJobTest::documentOfAnApplicationIsSent()
{
    const auto send = [](const QString &printer, const QString &path) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return QByteArray("no document");
        const int fd = file.handle();
        const QJsonObject job{{u"printer"_s, printer},
                              {u"options"_s, QJsonArray{QJsonArray{u"PrintMode"_s, u"Private"_s, 0},
                                                        QJsonArray{u"copies"_s, u"2"_s, 1}}}};
        QProcess process;
        process.setChildProcessModifier([fd] { ::fcntl(fd, F_SETFD, 0); });
        process.start(program, {u"--dialog-request"_s});
        process.write(QJsonDocument(QJsonObject{{u"kind"_s, u"submit"_s},
                                                {u"title"_s, u"Letter"_s},
                                                {u"document"_s, fd},
                                                {u"job"_s, job}})
                          .toJson(QJsonDocument::Compact) +
                      '\n');
        while (!process.canReadLine() && process.waitForReadyRead(20000))
            continue;
        const QByteArray answer = process.readLine();
        process.kill(); // it may be showing what went wrong
        process.waitForFinished();
        return answer;
    };
    QCOMPARE(send(u"office"_s, document), QByteArray("{\"response\":0}\n"));
    auto job = m_server.waitForNextJob();
    while (job && job->title != "Letter"_L1) // others may not have been looked at
        job = m_server.waitForNextJob();
    QVERIFY(job);
    QCOMPARE(job->copies, 2);
    QCOMPARE(job->options.value(u"PrintMode"_s), u"Private"_s);
    QCOMPARE(send(u"nowhere"_s, document), QByteArray("{\"response\":2}\n"));
    QCOMPARE(send(u"office"_s, u"/dev/null"_s), QByteArray("{\"response\":2}\n"));
    QVERIFY(m_server.capturedJobs().last() == job->id);
}

void PrintJobTest::queueOfTheDialogIsNoPrinter()
{
    QVERIFY(m_server.addQueue(u"dialog"_s,
                              QStringLiteral(KELMAR_BINARY_DIR "/packaging/queue/kelmar-dialog.ppd"),
                              u"kelmar-dialog:/"_s));
    QVERIFY(m_server.setDefaultQueue(u"dialog"_s));
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

QTEST_MAIN(PrintJobTest)
#include "print_job_test.moc"
