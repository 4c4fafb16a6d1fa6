// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/print_system.h"
#include "tests/integration/batch_program.h"
#include "tests/support/inline_ppd.h"
#include "tests/support/paths.h"

#include <QDir>
#include <QImage>
#include <QJsonArray>
#include <QStandardPaths>
#include <QTest>

#include <cups/cups.h>
#include <fcntl.h>
#include <unistd.h>

using namespace host;
using namespace Qt::StringLiterals;

namespace {

QByteArray gzipped(const QByteArray &contents)
{
    QProcess gzip;
    gzip.start(u"gzip"_s, {u"-c"_s});
    gzip.write(contents);
    gzip.closeWriteChannel();
    gzip.waitForFinished();
    return gzip.readAllStandardOutput();
}

} // namespace

// The program as called by a script, with a real print server: the data that reaches the printer.
class PrintJobTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void privateJobArrivesWhole();
    void passwordIsSentAsTheStandardSays();
    void customValuesArriveWhole_data();
    void customValuesArriveWhole();
    void balanceIsResetWithMonochrome();
    void conflictStopsUnlessResolved();
    void presetOfTheUserCounts();
    void standardInputIsPrinted();
    void otherMakersPrinter();
    void refusals_data();
    void refusals();
    void pausedPrinterKeepsTheJob();
    void printerReports();
    void documentsAreTheServersBusiness_data();
    void documentsAreTheServersBusiness();
    void documentThatEndsEarly();
    void namesAndPipes();
    void lastWordCounts();
    void resultsThatCannotBeWritten_data();
    void resultsThatCannotBeWritten();
    void temporaryFolder();
    void documentOfAnApplicationIsSent();
    void textsAreInTheLanguageOfTheDialog();

private:
    // Runs a batch job that must succeed, and returns what reached the printer.
    std::optional<CapturedJob> print(const QStringList &words, const QByteArray &input = {});
    QString file(const QString &name, const QByteArray &contents) { return write(m_server, name, contents); }

    PrivateCupsd m_server;
};

void PrintJobTest::initTestCase()
{
    if (const QString missing = PrivateCupsd::missing(); !missing.isEmpty())
        QSKIP(qPrintable(missing));
    QVERIFY2(m_server.start(), qPrintable(m_server.problem()));
    m_server.provideHome();
    const QString ppd = buildPath("/ppds/kelm880.ppd");
    for (const QString &queue : {u"office"_s, u"paused"_s, u"rejecting"_s})
        QVERIFY2(m_server.addQueue(queue, ppd), qPrintable(m_server.problem()));
    QVERIFY2(m_server.addQueue(u"other"_s, {}), qPrintable(m_server.problem()));
    QVERIFY2(m_server.addQueue(u"standard"_s, sourcePath("/tests/host/print_mode.ppd")),
             qPrintable(m_server.problem()));
    QVERIFY2(m_server.addQueue(u"custom"_s, sourcePath("/tests/host/custom_values.ppd")),
             qPrintable(m_server.problem()));
    QVERIFY(m_server.setDefaultQueue(u"office"_s));
    QVERIFY(m_server.setPaused(u"paused"_s, true));
    QVERIFY(m_server.setAccepting(u"rejecting"_s, false));
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
                            u"2"_s, u"-P"_s, u"1-2"_s, u"-o"_s, u"example-note=it's"_s, document});
    QVERIFY(job);
    const QString text = job->optionText;
    // Choices arrive unchanged, including a Boolean, and digits even if 0 is the printer's default.
    const QStringList expected{u"PrintMode=Private"_s, u"DeptCode=True"_s,      u"DCDigit1=0"_s,
                               u"DCDigit2=1"_s,        u"DCDigit3=2"_s,         u"DCDigit4=3"_s,
                               u"DCDigit5=0"_s,        u"DINDigit1=1"_s,        u"DINDigit2=2"_s,
                               u"DINDigit3=3"_s,       u"DINDigit4=4"_s,        u"DINDigit5=0"_s,
                               u"page-ranges=1-2"_s,   u"example-note=it\\'s"_s};
    for (const QString &option : expected)
        QVERIFY2((u" "_s + text + u" "_s).contains(u" "_s + option + u" "_s),
                 qPrintable(option + u" in "_s + text));
    QCOMPARE(job->copies, 2);
    QCOMPARE(job->title, u"report.pdf"_s);
}

void PrintJobTest::passwordIsSentAsTheStandardSays()
{
    const auto job = print({u"-d"_s, u"standard"_s, u"-o"_s, u"job-password=4711"_s, u"-o"_s,
                            u"job-account-id=Sales"_s, u"-o"_s, u"job-accounting-user-id=42"_s, document});
    QVERIFY(job);
    for (const QString &option : {u"job-password=4711"_s, u"job-password-encryption=none"_s,
                                  u"job-account-id=Sales"_s, u"job-accounting-user-id=42"_s})
        QVERIFY2(job->optionText.split(u' ').contains(option), qPrintable(job->optionText));
}

void PrintJobTest::customValuesArriveWhole_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QByteArray>("printed"); // in the PostScript of the real filters
    QTest::newRow("size") << u"PageSize"_s << u"Custom.300x400"_s
                          << QByteArray("%%HiResBoundingBox: 0 0 300.00 400.00");
    QTest::newRow("number") << u"StpGamma"_s << u"Custom.1.5"_s << QByteArray("*CustomStpGamma True\n1.5");
    QTest::newRow("two values") << u"Stamp"_s << u"{Words=top\\ secret Angle=45}"_s
                                << QByteArray("*CustomStamp True\n(top secret)\n45");
    QTest::newRow("password") << u"Lock"_s << u"Custom.s3cret"_s << QByteArray("*CustomLock True\n(s3cret)");
}

void PrintJobTest::customValuesArriveWhole()
{
    QFETCH(QString, option);
    QFETCH(QString, value);
    QFETCH(QByteArray, printed);
    const Outcome outcome =
        run({u"--batch"_s, u"-d"_s, u"custom"_s, u"--set"_s, option + u'=' + value, document});
    QCOMPARE(outcome.json[u"job"_s][u"differences"_s].toArray(), QJsonArray());
    const auto job = m_server.waitForJob(outcome.json[u"job"_s][u"id"_s].toInt());
    QVERIFY(job);
    QCOMPARE(job->options.value(option), value);
    QVERIFY2(job->data.contains(printed), job->data.left(4000).constData());
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

void PrintJobTest::printerReports()
{
    CupsPrintSystem system;
    PrintError error;
    const auto office = system.destination(u"office"_s, &error);
    QVERIFY(office);
    QVERIFY(system.withState(*office)->supplies.isEmpty());
    for (const QString &report :
         {u"ATTR: marker-names=Cyan,Black,Drum,Waste marker-types=toner,toner,opc,waste-toner "
          "marker-levels=80,7,-2,90 marker-low-levels=10,10,10,10"_s,
          u"STATE: +toner-low-warning"_s})
        QVERIFY(m_server.waitForJob(
            run({u"--batch"_s, u"-t"_s, report, document}).json[u"job"_s][u"id"_s].toInt()));
    std::optional<Destination> now;
    QTRY_VERIFY((now = system.withState(*office)) && !now->problem.isEmpty());
    QCOMPARE(now->problem, u"The toner is running low."_s);
    QCOMPARE(now->supplies,
             (QList<Supply>{{u"Cyan"_s, 80, false}, {u"Black"_s, 7, true}, {u"Drum"_s, -1, false}}));
}

void PrintJobTest::documentsAreTheServersBusiness_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<int>("code");
    const QByteArray drawing = "<?xml version=\"1.0\"?>\n<!-- " + QByteArray(500, '-').replace("--", "- ") +
                               " -->\n<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" height=\"9\"/>\n";
    const QByteArray postScript = "%!PS\n72 72 moveto 99 99 lineto stroke showpage\n";
    const QByteArray bitmap = QByteArray::fromHex("424d3a0000000000000036000000280000000100000001000000"
                                                  "0100180000000000040000000000000000000000000000000000000"
                                                  "00000ff00");
    QTest::newRow("bitmap") << bitmap << 0;
    QTest::newRow("PostScript") << gzipped(postScript) << 0;
    QTest::newRow("encapsulated PostScript")
        << QByteArray("%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 99 99\n") + postScript.mid(5) << 0;
    QTest::newRow("drawing") << drawing << 1;
    QTest::newRow("compressed drawing") << gzipped(drawing) << 1;
}

void PrintJobTest::documentsAreTheServersBusiness()
{
    QFETCH(QByteArray, contents);
    QFETCH(int, code);
    const QList<int> before = m_server.capturedJobs();
    const Outcome outcome = run({u"--batch"_s, file(u"document"_s, contents)});
    QCOMPARE(outcome.code, code);
    QCOMPARE(outcome.json[u"error"_s][u"code"_s].toString(), code ? u"unsupported-format"_s : QString());
    if (!QStandardPaths::findExecutable(u"pdftoppm"_s).isEmpty()) { // a file accepts the same documents
        const QString output = m_server.folder() + u"/pages.pdf"_s;
        QCOMPARE(run({u"--batch"_s, u"--output"_s, output, file(u"document"_s, contents)}).code, code);
        QCOMPARE(QFile::remove(output), code == 0);
    }
    if (code)
        QCOMPARE(m_server.capturedJobs(), before);
    else
        QVERIFY(m_server.waitForJob(outcome.json[u"job"_s][u"id"_s].toInt()));
}

// Its beginning is valid; the job already exists when its end turns out to be missing.
void PrintJobTest::documentThatEndsEarly()
{
    QByteArray text;
    for (int i = 0; i < 100'000; ++i)
        text += QByteArray::number(i) + '\n';
    const QByteArray whole = gzipped(text);
    const QList<int> before = m_server.capturedJobs();
    const Outcome outcome =
        run({u"--batch"_s, u"-d"_s, u"other"_s, file(u"cut.gz"_s, whole.first(whole.size() / 2))});
    QCOMPARE(outcome.code, 1);
    QVERIFY(outcome.json[u"error"_s][u"message"_s].toString().contains(u"cannot be read"_s));
    cups_job_t *unfinished = nullptr;
    const int count = cupsGetJobs2(CUPS_HTTP_DEFAULT, &unfinished, nullptr, 0, CUPS_WHICHJOBS_ACTIVE);
    cupsFreeJobs(count, unfinished);
    QCOMPARE(count, 0);
    QCOMPARE(m_server.capturedJobs(), before);
}

void PrintJobTest::namesAndPipes()
{
    const QString command = u"cp \"$2\" $'caf\\xe9.pdf' && mkfifo pipe && { cat \"$2\" >pipe & } && "
                            "exec \"$1\" --batch --json -d other $'caf\\xe9.pdf' pipe <(cat \"$2\")"_s;
    QProcess process;
    process.setWorkingDirectory(m_server.folder());
    process.start(u"bash"_s, {u"-c"_s, command, u"bash"_s, program, document});
    QVERIFY(process.waitForFinished());
    // QTemporaryDir could not remove this name.
    QCOMPARE(::unlink((m_server.folder().toLocal8Bit() + "/caf\xe9.pdf").constData()), 0);
    const QByteArray out = process.readAllStandardOutput();
    QVERIFY2(process.exitCode() == 0, (out + process.readAllStandardError()).constData());
    const auto job = m_server.waitForJob(QJsonDocument::fromJson(out)[u"job"_s][u"id"_s].toInt());
    QVERIFY(job);
    QCOMPARE(job->data.size(), 3 * QFileInfo(document).size());
}

void PrintJobTest::lastWordCounts()
{
    const QString presets = file(u".cups/lpoptions"_s, "Dest office/two number-up=2 job-priority=11\n");
    const auto job =
        print({u"-d"_s, u"office/two"_s, u"-o"_s, u"number-up=6"_s, u"-o"_s, u"number-up=4"_s, u"-o"_s,
               u"job-priority=70"_s, u"-o"_s, u"example-empty="_s, u"-P"_s, u"1"_s, document});
    QVERIFY(QFile::remove(presets));
    QVERIFY(job);
    QCOMPARE(job->options.value(u"number-up"_s), u"4"_s);
    QVERIFY2(job->optionText.count(u"number-up="_s) == 1, qPrintable(job->optionText));
    QVERIFY2(job->optionText.contains(u"example-empty="_s), qPrintable(job->optionText));
    // One page: the server stores it as the range from 1 to 1, which is not a difference.
    const Outcome outcome = run({u"--batch"_s, u"-P"_s, u"1"_s, document});
    QCOMPARE(outcome.json[u"job"_s][u"differences"_s].toArray(), QJsonArray());
    QVERIFY(m_server.waitForJob(outcome.json[u"job"_s][u"id"_s].toInt()));
}

void PrintJobTest::resultsThatCannotBeWritten_data()
{
    QTest::addColumn<QString>("words");
    QTest::newRow("summary, full") << u"--summary >/dev/full"_s;
    QTest::newRow("options, full") << u"--list-options >/dev/full"_s;
    QTest::newRow("JSON, closed") << u"--summary --json >&-"_s;
    // Detected before anything is sent.
    QTest::newRow("JSON of a job, full") << u"--batch --json \"$2\" >/dev/full"_s;
    QTest::newRow("summary before a job, full") << u"--batch --summary \"$2\" >/dev/full"_s;
    QTest::newRow("JSON of a job, closed") << u"--batch --json \"$2\" >&-"_s;
}

void PrintJobTest::resultsThatCannotBeWritten()
{
    QFETCH(QString, words);
    const QList<int> before = m_server.capturedJobs();
    QProcess process;
    process.start(u"bash"_s, {u"-c"_s, u"exec \"$1\" "_s + words, u"bash"_s, program, document});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 1);
    QVERIFY(process.readAllStandardError().contains("cannot be written"));
    QCOMPARE(m_server.capturedJobs(), before);
}

void PrintJobTest::temporaryFolder()
{
    const qsizetype all = run({u"--list-options"_s}).json[u"options"_s].toArray().size();
    QVERIFY(all > 40);
    qputenv("TMPDIR", "/dev/null/nowhere"); // which cannot be created
    const qsizetype without = run({u"--list-options"_s}).json[u"options"_s].toArray().size();
    const Outcome input = run({u"--batch"_s, u"-"_s}, "text\n");
    qunsetenv("TMPDIR");
    QCOMPARE(without, all); // the PPD needs no file
    QCOMPARE(input.code, 1);
    QVERIFY(input.json[u"error"_s][u"message"_s].toString().contains(u"/dev/null/nowhere"_s));
}

// As requested by the service: the request on the input, the document as a descriptor.
void PrintJobTest::documentOfAnApplicationIsSent()
{
    const auto send = [](const QString &printer, const QString &path) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return QByteArray("no document");
        QProcess process;
        startSubmission(&process, printer, file.handle());
        while (!process.canReadLine() && process.waitForReadyRead(20000))
            continue;
        const QByteArray answer = process.readLine();
        process.kill(); // it may be showing an error
        process.waitForFinished();
        return answer;
    };
    QCOMPARE(send(u"office"_s, document), QByteArray("{\"response\":0}\n"));
    auto job = m_server.waitForNextJob();
    while (job && job->title != "Letter"_L1) // there may be other jobs
        job = m_server.waitForNextJob();
    QVERIFY(job);
    QCOMPARE(job->copies, 2);
    QCOMPARE(job->options.value(u"PrintMode"_s), u"Private"_s);
    QCOMPARE(send(u"nowhere"_s, document), QByteArray("{\"response\":2}\n"));
    QCOMPARE(send(u"office"_s, u"/dev/null"_s), QByteArray("{\"reason\":\"document\",\"response\":2}\n"));
    QFile whole(document);
    QVERIFY(whole.open(QIODevice::ReadOnly));
    QCOMPARE(send(u"office"_s, file(u"cut.pdf"_s, whole.read(300))), QByteArray("{\"response\":2}\n"));
    QVERIFY(m_server.capturedJobs().last() == job->id);
}

// Qt sets the locale from LC_ALL while a worker reads the texts of the printer in the language of LANGUAGE.
void PrintJobTest::textsAreInTheLanguageOfTheDialog()
{
    const QString ppd =
        file(u"german.ppd"_s, "*PPD-Adobe: \"4.3\"\n*LanguageEncoding: UTF-8\n*cupsLanguages: \"de\"\n" +
                                  ppdOption("Coat/Coating", {"None/None", "Gloss/Glossy"}) +
                                  "*de.Translation Coat/Beschichtung: \"\"\n");
    QVERIFY2(m_server.addQueue(u"german"_s, ppd), qPrintable(m_server.problem()));
    const auto picture = [this](const char *variable) {
        const QString path = m_server.folder() + u"/picture.png"_s;
        QProcess dialog;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char *name : {"LC_ALL", "LC_MESSAGES", "LANG"})
            environment.remove(QLatin1String(name));
        environment.insert(QLatin1String(variable), u"C.UTF-8"_s);
        environment.insert(u"LANGUAGE"_s, u"de"_s);
        dialog.setProcessEnvironment(environment);
        dialog.start(program,
                     {u"-d"_s, u"german"_s, u"--panel"_s, u"more"_s, u"--screenshot"_s, path, document});
        return dialog.waitForFinished() ? QImage(path) : QImage();
    };
    const QImage expected = picture("LANG");
    QVERIFY(!expected.isNull());
    for (int i = 0; i < 5; ++i)
        QCOMPARE(picture("LC_ALL"), expected);
}

QTEST_MAIN(PrintJobTest)
#include "print_job_test.moc"
