// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/batch/batch_run.h"
#include "host/policy/policy.h"
#include "host/preview/page_tools.h"
#include "tests/host/host_fixture.h"
#include "tests/support/paths.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QTest>
#include <QThread>

#include <csignal>

using namespace host;
using namespace Qt::StringLiterals;

namespace {

std::function<void()> onSync;

} // namespace

// In place of the function of the C library.
extern "C" int fsync(int)
{
    if (onSync)
        onSync();
    return 0;
}

class BatchRunTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void commandLines_data();
    void commandLines();
    void settingsKeepTheirOrder();
    void exitCodes_data();
    void exitCodes();
    void submitsWhatWasAsked();
    void lastWordOfTheUserCounts_data();
    void lastWordOfTheUserCounts();
    void defaultsOfTheUser_data();
    void defaultsOfTheUser();
    void unchangedDocumentIsNotScaled_data();
    void unchangedDocumentIsNotScaled();
    void customValues_data();
    void customValues();
    void unchangedCustomDefaults();
    void standardInput();
    void conflictIsExplainedInJson();
    void resolveAcceptsTheProposal();
    void optionsAreListed();
    void signalLeavesNoUnfinishedFile();

private:
    int run(const QStringList &words);
    QJsonObject json() const { return QJsonDocument::fromJson(m_out.data()).object(); }

    FakePrintSystem m_system;
    QTemporaryFile m_document;
    QBuffer m_out, m_err, m_input;
};

void BatchRunTest::init()
{
    Policy::setCurrent({});
    m_system = FakePrintSystem();
    Destination office = officePrinter();
    office.isDefault = true;
    m_system.printers = {office, officePrinter(u"raw"_s), officePrinter(u"custom"_s)};
    const QByteArray model = ppdOption("ColorModel/Output Mode", {"RGB/Color", "Gray/Grayscale"});
    // Newer versions of libcups find a size in "media" by its dimensions.
    const QByteArray sizes = "*PaperDimension A4: \"595 842\"\n*ImageableArea A4: \"12 12 583 830\"\n"
                             "*PaperDimension A3: \"842 1191\"\n*ImageableArea A3: \"12 12 830 1179\"\n";
    const QByteArray ppd =
        officePpd().replace("*CloseUI: *Duplex\n", "*Duplex DuplexTumble/Short Edge: \"\"\n"
                                                   "*CloseUI: *Duplex\n");
    m_system.ppds = {{u"office"_s, ppd + sizes + ppdGroup("Mode/Mode", model)}, {u"custom"_s, customPpd()}};
    if (!m_document.isOpen()) {
        QVERIFY(m_document.open());
        m_document.write(QByteArray("some text\n").repeated(300)); // five pages
        m_document.flush();
    }
}

void BatchRunTest::signalLeavesNoUnfinishedFile()
{
    const PageTools tools = PageTools::installed();
    if (tools.path(u"pdftopdf"_s).isEmpty() || tools.path(u"qpdf"_s).isEmpty())
        QSKIP("cups-filters or qpdf is not installed");
    const QTemporaryDir folder;
    QSemaphore ended;
    std::signal(SIGTERM, [](int) {}); // when the run has ended
    onSync = [&] {
        std::raise(SIGTERM);
        if (QThread::currentThread() != thread())
            ended.acquire(); // a slow disk
    };
    run({u"--batch"_s, u"--output"_s, folder.filePath(u"out.pdf"_s), sourcePath("/demo/report.pdf")});
    const QStringList files = QDir(folder.path()).entryList(QDir::Files);
    ended.release();
    onSync = {};
    std::signal(SIGTERM, SIG_DFL);
    QCOMPARE(files, QStringList(u"out.pdf"_s));
}

int BatchRunTest::run(const QStringList &words)
{
    for (QBuffer *buffer : {&m_out, &m_err}) {
        buffer->close();
        buffer->setData({});
        buffer->open(QIODevice::WriteOnly);
    }
    QString error;
    const auto arguments = parseArguments(QStringList(u"kelmar-print"_s) + words, &error);
    if (!arguments)
        return ExitUsage;
    Extensions none({});
    ResultWriter writer(&m_out, &m_err);
    BatchRun batch(*arguments, m_system, none);
    batch.setInput(&m_input);
    return batch.run(&writer);
}

void BatchRunTest::commandLines_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<bool>("understood");
    QTest::newRow("nothing") << QStringList() << true;
    QTest::newRow("as lp") << QStringList(
                                  {u"-d"_s, u"office"_s, u"-n2"_s, u"-o"_s, u"Duplex=None"_s, u"a.pdf"_s})
                           << true;
    QTest::newRow("switches of lp") << QStringList({u"-o"_s, u"landscape"_s, u"-o"_s, u"nocollate"_s})
                                    << true;
    QTest::newRow("unknown") << QStringList(u"--sepia"_s) << false;
    QTest::newRow("value missing") << QStringList({u"--set"_s, u"PrintMode"_s}) << false;
    QTest::newRow("key missing") << QStringList({u"--set"_s, u"=x"_s}) << false;
    QTest::newRow("colours") << QStringList({u"--color-scheme"_s, u"pink"_s}) << false;
    QTest::newRow("JSON of a window") << QStringList(u"--json"_s) << false;
    QTest::newRow("proposal of a window") << QStringList(u"--resolve"_s) << false;
    QTest::newRow("nowhere to print") << QStringList({u"--batch"_s, u"--ppd"_s, u"x.ppd"_s}) << false;
}

void BatchRunTest::commandLines()
{
    QFETCH(QStringList, words);
    QFETCH(bool, understood);
    QString error;
    QCOMPARE(parseArguments(QStringList(u"kelmar-print"_s) + words, &error).has_value(), understood);
    QCOMPARE(error.isEmpty(), understood);
}

void BatchRunTest::settingsKeepTheirOrder()
{
    QString error;
    const auto arguments =
        parseArguments({u"kelmar-print"_s, u"--set"_s, u"A=1"_s, u"-o"_s, u"B=2=3"_s, u"-n"_s, u"4"_s,
                        u"-s"_s, u"A=5"_s, u"-o"_s, u"nofit"_s, u"--"_s, u"-file"_s},
                       &error);
    QVERIFY2(arguments, qPrintable(error));
    QStringList order;
    for (const auto &assignment : arguments->assignments)
        order.append(assignment.key + u"="_s + assignment.value + (assignment.passOn ? u"*"_s : QString()));
    QCOMPARE(order, QStringList({u"A=1"_s, u"B=2=3*"_s, u"copies=4"_s, u"A=5"_s, u"fit=false*"_s}));
    QCOMPARE(arguments->files, QStringList(u"-file"_s));
}

void BatchRunTest::exitCodes_data()
{
    QTest::addColumn<QString>("words"); // FILE is replaced by the document
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("error");
    QTest::newRow("done") << u"--batch FILE"_s << int(ExitSuccess) << QString();
    QTest::newRow("raw queue") << u"--batch -d raw FILE"_s << int(ExitSuccess) << QString();
    QTest::newRow("no such printer") << u"--batch -d nowhere FILE"_s << int(ExitFailure)
                                     << u"no-such-printer"_s;
    QTest::newRow("no such file") << u"--batch /nowhere.pdf"_s << int(ExitFailure) << u"file-missing"_s;
    QTest::newRow("no such option") << u"--batch --set Sepia=1 FILE"_s << int(ExitUsage) << u"bad-value"_s;
    QTest::newRow("no such choice") << u"--batch --set Cyan=7 FILE"_s << int(ExitUsage) << u"bad-value"_s;
    QTest::newRow("no such size") << u"--batch -o media=Foo FILE"_s << int(ExitUsage) << u"bad-value"_s;
    QTest::newRow("no such sides") << u"--batch -o sides=foo FILE"_s << int(ExitUsage) << u"bad-value"_s;
    QTest::newRow("sizes as they are")
        << u"--batch -o media=A4 -o media=A3 FILE"_s << int(ExitSuccess) << QString();
    QTest::newRow("conflict") << u"--batch --set ColorType=Mono --set Cyan=2 FILE"_s << int(ExitConflict)
                              << u"conflict"_s;
    QTest::newRow("conflict in a summary")
        << u"--summary --set ColorType=Mono --set Cyan=2"_s << int(ExitConflict) << u"conflict"_s;
    QTest::newRow("proposal accepted")
        << u"--batch --resolve --set Staple=Left FILE"_s << int(ExitSuccess) << QString();
    QTest::newRow("locked by the policy")
        << u"--summary -d custom --set collate=false"_s << int(ExitFailure) << u"not-authorised"_s;
    QTest::newRow("password of digits")
        << u"--batch -d custom -o job-password=1234 FILE"_s << int(ExitSuccess) << QString();
    QTest::newRow("password with a letter")
        << u"--batch -d custom -o job-password=12a FILE"_s << int(ExitUsage) << u"bad-value"_s;
    QTest::newRow("no passwords here")
        << u"--batch -o job-password=1234 FILE"_s << int(ExitUsage) << u"bad-value"_s;
    QTest::newRow("scale too small") << u"--batch -o natural-scaling=24 FILE"_s << int(ExitUsage)
                                     << u"bad-value"_s;
    QTest::newRow("back of a booklet upside down")
        << u"--batch -o booklet=true --set Duplex=DuplexNoTumble FILE"_s << int(ExitUsage) << u"bad-value"_s;
    QTest::newRow("no such priority")
        << u"--batch -o job-priority=900 FILE"_s << int(ExitUsage) << u"bad-value"_s;
    QTest::newRow("no such cover sheet")
        << u"--batch --set job-sheets=standard,nosuch FILE"_s << int(ExitUsage) << u"bad-value"_s;
    QTest::newRow("cover sheets") << u"--batch -o job-sheets=Standard,none FILE"_s << int(ExitSuccess)
                                  << QString();
    QTest::newRow("no such page") << u"--batch -P 99 FILE"_s << int(ExitUsage) << u"bad-value"_s;
}

void BatchRunTest::exitCodes()
{
    QFETCH(QString, words);
    QFETCH(int, code);
    QFETCH(QString, error);
    words.replace(u"FILE"_s, m_document.fileName());
    m_system.printers.first().coverSheets = {u"none"_s, u"standard"_s};
    m_system.printers.last().passwordLength = 4;
    m_system.ppds[u"custom"_s] +=
        "*cupsJobPassword: \"1111\"\n" + ppdOption("Collate/Collate", {"True", "False"});
    const QByteArray policy = R"({"rules": [{"queues": ["custom"], "locked": {"Collate": "True"}}]})";
    QString problem;
    Policy::setCurrent(*Policy::parse(policy, u"policy.json"_s, &problem));
    QCOMPARE(run(words.split(u' ') + QStringList(u"--json"_s)), code);
    QCOMPARE(json()[u"error"_s][u"code"_s].toString(), error);
    QCOMPARE(m_system.submitted.size(), code == ExitSuccess ? 1 : 0);
    QVERIFY(m_err.data().isEmpty()); // everything is in one JSON object
    QCOMPARE(run(words.split(u' ')), code);
    QCOMPARE(m_err.data().isEmpty(), error.isEmpty() && !words.contains(u"--resolve"_s));
}

void BatchRunTest::submitsWhatWasAsked()
{
    QCOMPARE(run({u"--batch"_s, u"-n"_s, u"2"_s, u"-P"_s, u"3,1-2"_s, u"-t"_s, u"Report"_s, u"--set"_s,
                  u"Cyan=1"_s, u"-o"_s, u"sides=two-sided-long-edge"_s, u"-o"_s, u"number-up=4"_s,
                  m_document.fileName()}),
             int(ExitSuccess));
    const JobRequest job = m_system.submitted.first();
    QCOMPARE(job.title, u"Report"_s);
    QCOMPARE(sentValue(job.options, u"Cyan"_s), u"1"_s);
    QCOMPARE(sentValue(job.options, u"Duplex"_s), u"DuplexNoTumble"_s);
    QCOMPARE(sentValue(job.options, u"copies"_s), u"2"_s);
    QCOMPARE(sentValue(job.options, u"page-ranges"_s), u"1-3"_s);
    QCOMPARE(sentValue(job.options, u"number-up"_s), u"4"_s);
    QVERIFY2(m_out.data().startsWith("request id is office-1 (1 file(s))\nJob 1"), m_out.data().constData());
    QTemporaryFile other;
    QVERIFY(other.open() && other.write("more text\n") > 0 && other.flush());
    QCOMPARE(run({u"--batch"_s, m_document.fileName(), other.fileName()}), int(ExitSuccess));
    for (const QTemporaryFile *file : {&m_document, &other})
        QVERIFY(m_out.data().contains("\n    " + QFileInfo(file->fileName()).fileName().toUtf8() + "\n"));
}

void BatchRunTest::lastWordOfTheUserCounts_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("sent");
    QTest::newRow("over a preset") << u"-o job-priority=70"_s << u"job-priority"_s << u"70"_s;
    QTest::newRow("as a setting") << u"--set Job-Priority=75"_s << u"job-priority"_s << u"75"_s;
    QTest::newRow("with a sign") << u"--set job-priority=+75"_s << u"job-priority"_s << u"75"_s;
    QTest::newRow("time in capitals")
        << u"-o Job-Hold-Until=Evening"_s << u"job-hold-until"_s << u"evening"_s;
    QTest::newRow("over itself") << u"-o job-sheets=standard -o job-sheets=none"_s << u"job-sheets"_s
                                 << u"none"_s;
    QTest::newRow("over the PPD's default") << u"--set Duplex=None"_s << u"Duplex"_s << u"None"_s;
    QTest::newRow("over a default of that name") << u"--set Duplex=None"_s << u"sides"_s << u"one-sided"_s;
    QTest::newRow("in the words of the standard") << u"-o sides=one-sided"_s << u"Duplex"_s << u"None"_s;
    QTest::newRow("after an unknown size") << u"--set PageSize=A3"_s << u"media"_s << u"A3"_s;
    QTest::newRow("an unknown size") << QString() << u"media"_s << u"Foo"_s;
    QTest::newRow("in capitals") << u"-o Copies=3"_s << u"copies"_s << u"3"_s;
    QTest::newRow("the page region") << u"-o PageRegion=A3"_s << u"PageSize"_s << u"A3"_s;
    QTest::newRow("the page region as a setting") << u"--set PageRegion=A3"_s << u"PageSize"_s << u"A3"_s;
    QTest::newRow("size and type") << u"-o media=A3,Thick -o sides=one-sided"_s << u"PageSize"_s << u"A3"_s;
    QTest::newRow("type and size") << u"-o Media=A3,thick -o sides=one-sided"_s << u"MediaType"_s
                                   << u"Thick"_s;
    QTest::newRow("color mode") << u"--set ColorModel=RGB"_s << u"print-color-mode"_s << u"color"_s;
    QTest::newRow("how copies are collated")
        << u"-n 2 -o multiple-document-handling=separate-documents-uncollated-copies"_s << u"Collate"_s
        << u"False"_s;
    QTest::newRow("how documents are joined") << u"-n 2 -o multiple-document-handling=single-document"_s
                                              << u"multiple-document-handling"_s << u"single-document"_s;
    QTest::newRow("mirror image") << u"--set mirror=yes"_s << u"mirror"_s << u"true"_s;
    QTest::newRow("booklet") << u"--set booklet=on"_s << u"booklet"_s << u"true"_s;
    QTest::newRow("sides of a booklet")
        << u"--set Duplex=DuplexNoTumble -o booklet=true"_s << u"Duplex"_s << u"DuplexTumble"_s;
    QTest::newRow("other pages") << u"-P 4"_s << u"page-ranges"_s << u"4"_s;
    QTest::newRow("all pages") << u"--set page-ranges="_s << u"page-ranges"_s << u"1-2147483647"_s;
}

void BatchRunTest::lastWordOfTheUserCounts()
{
    QFETCH(QString, words);
    QFETCH(QString, name);
    m_system.printers.first().options = {{u"job-priority"_s, u"20"_s},
                                         {u"sides"_s, u"two-sided-long-edge"_s},
                                         {u"media"_s, u"Foo"_s},
                                         {u"page-ranges"_s, u"1-2"_s},
                                         {u"print-color-mode"_s, u"monochrome"_s}};
    QStringList all = words.split(u' ', Qt::SkipEmptyParts);
    QCOMPARE(run(QStringList(u"--batch"_s) + all + QStringList(m_document.fileName())), int(ExitSuccess));
    const QList<JobOption> options = m_system.submitted.first().options;
    // Newer versions of libcups also accept a type in "media": "A3,Plain".
    QTEST(sentValue(options, name).section(u',', 0, 0), "sent");
    QSet<QString> names;
    for (const JobOption &option : options) {
        QVERIFY2(!names.contains(option.name.toLower()), qPrintable(option.name));
        names.insert(option.name.toLower());
    }
}

void BatchRunTest::defaultsOfTheUser_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("sentName");
    QTest::addColumn<QString>("sent");
    QTest::newRow("collate") << u"collate"_s << u"false"_s << u"Collate"_s << u"False"_s;
    QTest::newRow("PPD keyword") << u"Collate"_s << u"False"_s << u"Collate"_s << u"False"_s;
    QTest::newRow("standard name") << u"multiple-document-handling"_s
                                   << u"separate-documents-uncollated-copies"_s << u"Collate"_s << u"False"_s;
    QTest::newRow("pages") << u"page-ranges"_s << u"4,2-3"_s << u"page-ranges"_s << u"2-4"_s;
    QTest::newRow("against the server's") << u"sides"_s << u"one-sided"_s << u"sides"_s << u"one-sided"_s;
    QTest::newRow("color mode") << u"print-color-mode"_s << u"monochrome"_s << u"ColorModel"_s << u"Gray"_s;
    QTest::newRow("no pages") << u"page-ranges"_s << u"all"_s << u"page-ranges"_s << QString();
    QTest::newRow("no priority") << u"job-priority"_s << u"900"_s << u"job-priority"_s << QString();
    QTest::newRow("no time") << u"job-hold-until"_s << u"frob"_s << u"job-hold-until"_s << QString();
    QTest::newRow("no number of copies") << u"copies"_s << u"10000"_s << u"copies"_s << u"1"_s;
    QTest::newRow("no scale") << u"natural-scaling"_s << u"900"_s << u"natural-scaling"_s << QString();
    QTest::newRow("backs of a booklet") << u"booklet"_s << u"true"_s << u"Duplex"_s << u"DuplexTumble"_s;
}

void BatchRunTest::defaultsOfTheUser()
{
    QFETCH(QString, name);
    QFETCH(QString, value);
    QFETCH(QString, sentName);
    m_system.printers.first().options = {
        {u"copies"_s, u"2"_s}, {u"sides"_s, u"two-sided-long-edge"_s}, {name, value}};
    m_system.printers.first().queueDefaults = {{u"sides"_s, u"two-sided-long-edge"_s}};
    QCOMPARE(run({u"--batch"_s, m_document.fileName()}), int(ExitSuccess));
    QTEST(sentValue(m_system.submitted.first().options, sentName), "sent");
    const bool isInvalid = QByteArray(QTest::currentDataTag()).startsWith("no ") && name != u"page-ranges";
    QCOMPARE(m_err.data().contains("A stored setting is not used: " + name.toUtf8()), isInvalid);
}

void BatchRunTest::unchangedDocumentIsNotScaled_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QMap<QString, QString>>("defaults"); // of the user
    QTest::addColumn<bool>("isUnchanged");
    using Map = QMap<QString, QString>;
    const Map raw{{u"raw"_s, u"true"_s}, {u"natural-scaling"_s, u"70"_s}};
    QTest::newRow("default") << QString() << raw << true;
    QTest::newRow("default format") << u"-o natural-scaling=70"_s
                                    << Map{{u"document-format"_s, u"application/vnd.cups-raw"_s}} << true;
    QTest::newRow("chosen") << u"-o raw -o natural-scaling=70"_s << Map() << true;
    QTest::newRow("not against the default") << u"-o raw=false"_s << raw << false;
}

// The rule for documents that reach the printer unchanged.
void BatchRunTest::unchangedDocumentIsNotScaled()
{
    QFETCH(QString, words);
    using Map = QMap<QString, QString>;
    QFETCH(Map, defaults);
    m_system.printers.first().options = defaults;
    const int code = run(QStringList(u"--batch"_s) + words.split(u' ', Qt::SkipEmptyParts) +
                         QStringList(m_document.fileName()));
    QTEST(m_err.data().contains("They cannot be scaled."), "isUnchanged");
    QCOMPARE(m_system.submitted.size(), code == ExitSuccess ? 1 : 0);
}

void BatchRunTest::customValues_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("problem"); // null if it is accepted
    QTest::newRow("points") << u"PageSize"_s << u"Custom.300x400"_s << QString();
    QTest::newRow("millimetres") << u"PageSize"_s << u"Custom.100x200.5mm"_s << QString();
    QTest::newRow("no size") << u"PageSize"_s << u"Custom.foo"_s << u"sizes from 72 × 72 to 1000 × 2000 pt"_s;
    QTest::newRow("no value") << u"PageSize"_s << u"Custom"_s << u"sizes from"_s;
    QTest::newRow("too large") << u"PageSize"_s << u"Custom.99999x99999"_s << u"sizes from"_s;
    QTest::newRow("no unit") << u"PageSize"_s << u"Custom.100x200lightyears"_s << u"sizes from"_s;
    QTest::newRow("number") << u"StpGamma"_s << u"Custom.1.5"_s << QString();
    QTest::newRow("beyond the range") << u"StpGamma"_s << u"Custom.4.1"_s << u"a number from 0.1 to 4"_s;
    QTest::newRow("whole number") << u"Density"_s << u"Custom.-5"_s << QString();
    QTest::newRow("fraction") << u"Density"_s << u"Custom.1.5"_s << u"a whole number from -5 to 5"_s;
    QTest::newRow("several") << u"Stamp"_s << u"{Words=top\\ secret Angle=45}"_s << QString();
    QTest::newRow("one of several") << u"Stamp"_s << u"Custom.draft"_s << u"{Words=… Angle=…}"_s;
    QTest::newRow("several beyond") << u"Stamp"_s << u"{Words=draft Angle=91}"_s << u"from 0 to 90"_s;
    QTest::newRow("password") << u"Lock"_s << u"Custom.s3cret"_s << QString();
    QTest::newRow("short password") << u"Lock"_s << u"Custom.s3c"_s << u"a password of 4 to 8 characters"_s;
    QTest::newRow("where there is none") << u"MediaSource"_s << u"Custom.1"_s << u"no option"_s;
}

void BatchRunTest::customValues()
{
    QFETCH(QString, option);
    QFETCH(QString, value);
    QFETCH(QString, problem);
    const QStringList words{u"-d"_s, u"custom"_s, u"--set"_s, option + u'=' + value};
    const int code = run(words + QStringList({u"--batch"_s, u"--json"_s, m_document.fileName()}));
    QCOMPARE(code, int(problem.isNull() ? ExitSuccess : ExitUsage));
    if (!problem.isNull()) {
        const QString message = json()[u"error"_s][u"message"_s].toString();
        QVERIFY2(message.contains(problem) && !message.contains(u"s3c"_s), qPrintable(message));
        return;
    }
    QCOMPARE(sentValue(m_system.submitted.first().options, option), value);
    for (const QString &what : {u"--summary"_s, u"--list-options"_s}) {
        QCOMPARE(run(words + QStringList(what)), int(ExitSuccess));
        QVERIFY2(m_out.data().contains("Custom") && !m_out.data().contains("s3c"), m_out.data().constData());
    }
}

// Defaults of a preset or the administrator, in the destination's options or in the PPD.
void BatchRunTest::unchangedCustomDefaults()
{
    m_system.ppds[u"custom"_s].replace("*DefaultDensity: Normal", "*DefaultDensity: Custom.2");
    m_system.printers.last().options = {
        {u"media"_s, u"Custom.300x400"_s}, {u"StpGamma"_s, u"Custom.1.5"_s}, {u"Lock"_s, u"Custom.1"_s}};
    QCOMPARE(run({u"-d"_s, u"custom"_s, u"--batch"_s, u"--json"_s, u"--summary"_s, m_document.fileName()}),
             0);
    const QList<JobOption> sent = m_system.submitted.first().options;
    QCOMPARE(sentValue(sent, u"PageSize"_s), u"Custom.300x400"_s);
    QCOMPARE(sentValue(sent, u"StpGamma"_s), u"Custom.1.5"_s);
    QCOMPARE(sentValue(sent, u"Lock"_s), QString());
    QVERIFY(json()[u"notices"_s][0].toString().contains(u"Lock takes"_s));
    const QByteArray summary = QJsonDocument(json()[u"summary"_s].toArray()).toJson();
    for (const char *shown : {"Custom (300 × 400 pt)", "Custom (1.5)", "Custom (2)"})
        QVERIFY2(summary.contains(shown), summary.constData());
}

void BatchRunTest::standardInput()
{
    QByteArray text("piped text\n");
    m_input.setBuffer(&text);
    QVERIFY(m_input.open(QIODevice::ReadOnly));
    QCOMPARE(run({u"--batch"_s}), int(ExitSuccess));
    QCOMPARE(m_system.submitted.first().documents.first().format, u"text/plain"_s);
    m_input.close();
}

void BatchRunTest::conflictIsExplainedInJson()
{
    run({u"--batch"_s, u"--json"_s, u"--set"_s, u"ColorType=Mono"_s, u"--set"_s, u"Cyan=2"_s,
         m_document.fileName()});
    const QJsonObject error = json()[u"error"_s].toObject();
    const QJsonArray sides = error[u"conflicts"_s][0].toArray();
    QCOMPARE(sides.size(), 2);
    QCOMPARE(sides[0][u"optionText"_s].toString(), u"Colour Mode"_s);
    QCOMPARE(sides[1][u"choice"_s].toString(), u"2"_s);
    // Cyan was set last and is kept
    QCOMPARE(error[u"proposal"_s][0][u"option"_s].toString(), u"ColorType"_s);
}

void BatchRunTest::resolveAcceptsTheProposal()
{
    QCOMPARE(run({u"--batch"_s, u"--json"_s, u"--resolve"_s, u"--set"_s, u"Cyan=2"_s, u"--set"_s,
                  u"ColorType=Mono"_s, m_document.fileName()}),
             int(ExitSuccess));
    QCOMPARE(json()[u"resolved"_s][0][u"option"_s].toString(), u"Cyan"_s);
    QCOMPARE(sentValue(m_system.submitted.first().options, u"ColorType"_s), u"Mono"_s);
    QCOMPARE(sentValue(m_system.submitted.first().options, u"Cyan"_s), u"0"_s);
    QCOMPARE(
        run({u"--list-options"_s, u"--resolve"_s, u"--set"_s, u"Cyan=2"_s, u"--set"_s, u"ColorType=Mono"_s}),
        int(ExitSuccess));
    QVERIFY2(m_out.data().contains("Balance: *0 "), m_out.data().constData());
}

void BatchRunTest::optionsAreListed()
{
    QCOMPARE(run({u"--list-options"_s, u"--json"_s}), int(ExitSuccess));
    const QJsonArray options = json()[u"options"_s].toArray();
    QCOMPARE(options.size(), 9);
    QCOMPARE(options[0][u"option"_s].toString(), u"PageSize"_s);
    QCOMPARE(options[0][u"choices"_s][1][u"choice"_s].toString(), u"A3"_s);
    QCOMPARE(json()[u"panelKeys"_s][2][u"key"_s].toString(), u"page-ranges"_s);
    QVERIFY(m_system.submitted.isEmpty());
    QCOMPARE(run({u"--list-options"_s}), int(ExitSuccess));
    QVERIFY2(m_out.data().contains("    Duplex/Two-Sided: *None DuplexNoTumble DuplexTumble\n"),
             m_out.data().constData());
    QVERIFY2(m_out.data().contains("    job-hold-until (job)\n"), m_out.data().constData());
}

QTEST_MAIN(BatchRunTest)
#include "batch_run_test.moc"
