// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/job.h"
#include "host/printing/message_language.h"
#include "host/printing/page_ranges.h"
#include "host/printing/utf8_text.h"
#include "host/session/job_cost.h"
#include "host/session/sheet_finish.h"
#include "platform/descriptor_io.h"
#include "tests/host/host_fixture.h"
#include "tests/support/paths.h"

#include <QBuffer>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QTest>

#include <atomic>
#include <thread>

#include <sys/stat.h>

using namespace host;
using namespace Qt::StringLiterals;

// Basic values: page ranges, documents, and the PPD as used by the host.
class CoreValuesTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { speakDialogLanguage(); }
    void pageRanges_data();
    void pageRanges();
    void pageIsToggled_data();
    void pageIsToggled();
    void finishIsFound_data();
    void finishIsFound();
    void sheetsAreCounted_data();
    void sheetsAreCounted();
    void documents_data();
    void documents();
    void standardInputIsSpooled();
    void documentsAreReadWhileTheyAreOpened();
    void filesWithoutASize_data();
    void filesWithoutASize();
    void documentThatNeverEnds();
    void brokenPpdNamesFileAndLine();
    void packedPpdOfAQueue();
    void textsOfAPpd_data();
    void textsOfAPpd();
    void titlesEndBetweenCharacters();
    void conflictNamesBothSidesOnce();
    void manyConflictsAreFoundInTime();
    void resolutionKeepsTheLastChange();
    void forbiddenChoicesSayWhy();
    void standardOptionsBecomeMarks();
    void changedChoicesLeaveOutUnitsAndDefaults();

private:
    QTemporaryDir m_folder;
};

void CoreValuesTest::pageRanges_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("expected"); // null if refused
    QTest::newRow("nothing is all pages") << u"  "_s << u""_s;
    QTest::newRow("spaces") << u" 1 - 3 , 8 "_s << u"1-3,8"_s;
    QTest::newRow("sorted and merged") << u"8,1-3,2-5,6"_s << u"1-6,8"_s;
    QTest::newRow("one within another") << u"1-8,2-3"_s << u"1-8"_s;
    QTest::newRow("open ends") << u"-2,9-"_s << u"1-2,9-"_s;
    QTest::newRow("swallowed by an open end") << u"9-,12"_s << u"9-"_s;
    QTest::newRow("dash of a word processor") << u"1–3"_s << u"1-3"_s;
    for (const char *bad : {"3-1", "0", "a", "1,,2", "-", "1-2-3", "+1", "99999999999", "1;2"})
        QTest::newRow(bad) << QString::fromLatin1(bad) << QString();
}

void CoreValuesTest::pageRanges()
{
    QFETCH(QString, typed);
    QFETCH(QString, expected);
    QString error;
    const auto ranges = normalizedPageRanges(typed, &error);
    QCOMPARE(ranges.has_value(), !expected.isNull());
    QCOMPARE(ranges.value_or(QString()), expected);
    QCOMPARE(error.isEmpty(), !expected.isNull());
}

void CoreValuesTest::pageIsToggled_data()
{
    QTest::addColumn<QString>("ranges"); // of a document with 5 pages
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("toggled"); // null if no page would be left
    QTest::newRow("first of all") << QString() << 1 << u"2-"_s;
    QTest::newRow("middle of all") << QString() << 3 << u"1-2,4-"_s;
    QTest::newRow("last of all") << QString() << 5 << u"1-4"_s;
    QTest::newRow("back again") << u"1-2,4-"_s << 3 << u""_s;
    QTest::newRow("the missing page") << u"1-4"_s << 5 << u""_s;
    QTest::newRow("between ranges") << u"1,3"_s << 2 << u"1-3"_s;
    QTest::newRow("single page") << u"1,3"_s << 3 << u"1"_s;
    QTest::newRow("only page") << u"3"_s << 3 << QString();
    QTest::newRow("only page of the document") << u"3,9-"_s << 3 << QString();
}

void CoreValuesTest::pageIsToggled()
{
    QFETCH(const QString, ranges);
    QFETCH(const int, page);
    QFETCH(const QString, toggled);
    const auto result = withPageToggled(ranges, page, 5);
    QCOMPARE(result.has_value(), !toggled.isNull());
    QCOMPARE(result.value_or(QString()), toggled);
    QVERIFY(!result || containsPage(*result, page) != containsPage(ranges, page));
    QVERIFY(!result || std::abs(countPages(*result, 5) - countPages(ranges, 5)) == 1);
}

void CoreValuesTest::finishIsFound_data()
{
    QTest::addColumn<QMap<QString, QString>>("choices");
    QTest::addColumn<QList<QPoint>>("staples"); // their centres on the front, in percent
    QTest::addColumn<QList<QPoint>>("holes");   // in percent
    QTest::addColumn<QList<QPoint>>("back");    // both, in percent
    using Map = QMap<QString, QString>;
    using Points = QList<QPoint>;
    const QString staple = u"StapleLocation"_s, punch = u"Punch"_s, duplex = u"Duplex"_s;
    QTest::newRow("none") << Map{{staple, u"None"_s}} << Points() << Points() << Points();
    QTest::newRow("corner") << Map{{staple, u"UpperLeft"_s}} << Points{{4, 4}} << Points() << Points{{96, 4}};
    QTest::newRow("edge") << Map{{staple, u"DualTop"_s}, {duplex, u"DuplexTumble"_s}}
                          << Points{{30, 4}, {70, 4}} << Points() << Points{{30, 96}, {70, 96}};
    QTest::newRow("holes") << Map{{punch, u"Left3"_s}, {duplex, u"DuplexNoTumble"_s}} << Points()
                           << Points{{4, 30}, {4, 50}, {4, 70}} << Points{{96, 30}, {96, 50}, {96, 70}};
    QTest::newRow("fold") << Map{{staple, u"Saddle"_s}} << Points() << Points() << Points();
    QTest::newRow("no place") << Map{{punch, u"Yes"_s}} << Points() << Points() << Points();
}

void CoreValuesTest::finishIsFound()
{
    using Choices = QMap<QString, QString>;
    QFETCH(const Choices, choices);
    QFETCH(const QList<QPoint>, staples);
    QFETCH(const QList<QPoint>, holes);
    QFETCH(const QList<QPoint>, back);
    DialogSession session(
        officePrinter(),
        openPpd(ppdGroup("Finishing/Finishing",
                         ppdOption("StapleLocation", {"None", "UpperLeft", "DualTop", "Saddle"}) +
                             ppdOption("Punch", {"None", "Left3", "Yes"}) +
                             ppdOption("Duplex", {"None", "DuplexNoTumble", "DuplexTumble"}))));
    for (auto it = choices.begin(); it != choices.end(); ++it)
        QVERIFY(session.markChoice(it.key(), it.value()));
    const auto percent = [](const QPointF &point) { return (point * 100).toPoint(); };
    const auto points = [&](const SheetFinish &finish) {
        QList<QPoint> all;
        for (const QLineF &line : finish.staples)
            all.append(percent(line.center()));
        for (const QPointF &point : finish.holes)
            all.append(percent(point));
        return all;
    };
    const SheetFinish finish = sheetFinish(session);
    QCOMPARE(points(finish), staples + holes);
    QCOMPARE(points(finish.onTheBack()), back);
    QCOMPARE(finish.isSaddleStitched, choices.value(u"StapleLocation"_s) == u"Saddle");
    QCOMPARE(finish.binding, !choices.contains(u"Duplex"_s) ? SheetFinish::Binding::None
                             : choices.value(u"Duplex"_s) == u"DuplexTumble"
                                 ? SheetFinish::Binding::ShortEdge
                                 : SheetFinish::Binding::LongEdge);
}

void CoreValuesTest::sheetsAreCounted_data()
{
    QTest::addColumn<QMap<QString, QString>>("options");
    QTest::addColumn<bool>("isTwoSided");
    QTest::addColumn<QList<int>>("pages");
    QTest::addColumn<JobCost>("cost");
    using Map = QMap<QString, QString>;
    const QString copies = u"copies"_s, ranges = u"page-ranges"_s, numberUp = u"number-up"_s,
                  set = u"page-set"_s;
    QTest::newRow("one-sided") << Map() << false << QList<int>{8} << JobCost{8, 8};
    QTest::newRow("two-sided") << Map() << true << QList<int>{7} << JobCost{4, 7};
    QTest::newRow("copies begin anew") << Map{{copies, u"3"_s}} << true << QList<int>{3} << JobCost{6, 9};
    QTest::newRow("documents begin anew") << Map() << true << QList<int>{1, 2, 3} << JobCost{4, 6};
    QTest::newRow("several on a side") << Map{{numberUp, u"4"_s}} << true << QList<int>{9} << JobCost{2, 3};
    QTest::newRow("ranges") << Map{{ranges, u"1-3,6,9-"_s}} << false << QList<int>{10} << JobCost{6, 6};
    QTest::newRow("beyond the end") << Map{{ranges, u"2-9,12"_s}} << true << QList<int>{3} << JobCost{1, 2};
    QTest::newRow("ranges of sides") << Map{{ranges, u"2"_s}, {numberUp, u"2"_s}} << false << QList<int>{4}
                                     << JobCost{1, 1};
    QTest::newRow("booklet") << Map{{u"booklet"_s, u"yes"_s}, {numberUp, u"4"_s}} << true << QList<int>{5, 9}
                             << JobCost{5, 10};
    QTest::newRow("odd") << Map{{set, u"odd"_s}} << false << QList<int>{5} << JobCost{3, 3};
    QTest::newRow("even of a range") << Map{{set, u"even"_s}, {ranges, u"2-5"_s}} << true << QList<int>{9}
                                     << JobCost{1, 2};
}

void CoreValuesTest::sheetsAreCounted()
{
    using Options = QMap<QString, QString>;
    QFETCH(const Options, options);
    QFETCH(const bool, isTwoSided);
    QFETCH(const QList<int>, pages);
    QFETCH(const JobCost, cost);
    const JobCost counted = jobCost(GeneralSettings::from(options), isTwoSided, pages);
    QCOMPARE(counted.sheets, cost.sheets);
    QCOMPARE(counted.sides, cost.sides);
}

void CoreValuesTest::documents_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<QString>("format"); // empty if refused as empty
    QTest::newRow("PDF whatever its name") << QByteArray("%PDF-1.4\n1 0 obj\n") << u"application/pdf"_s;
    QTest::newRow("PostScript") << QByteArray("%!PS-Adobe-3.0\nshowpage\n") << u"application/postscript"_s;
    QTest::newRow("text") << QByteArray("Grüße aus dem Büro\n") << u"text/plain"_s;
    QTest::newRow("picture") << QByteArray::fromHex("89504e470d0a1a0a0000000d49484452") << u"image/png"_s;
    QTest::newRow("unknown") << QByteArray::fromHex("00ff00ee0102aa55") << u"application/octet-stream"_s;
    QTest::newRow("nothing") << QByteArray() << QString();
}

void CoreValuesTest::documents()
{
    QFETCH(QByteArray, contents);
    QFETCH(QString, format);
    QTemporaryFile file(QDir::tempPath() + u"/kelmar-test-XXXXXX.txt"_s);
    QVERIFY(file.open());
    file.write(contents);
    file.close();
    PrintError error;
    const auto document = openDocument(file.fileName(), &error);
    QCOMPARE(document ? document->format : QString(), format);
    QCOMPARE(error.kind, format.isEmpty() ? PrintError::Kind::EmptyDocument : PrintError::Kind::None);
    QVERIFY(!openDocument(u"/nowhere/at all.pdf"_s, &error));
    QCOMPARE(error.kind, PrintError::Kind::FileMissing);
    QVERIFY(error.message.contains(u"/nowhere/at all.pdf"_s));
}

void CoreValuesTest::standardInputIsSpooled()
{
    QByteArray contents(200'000, 'x');
    QBuffer input(&contents);
    QVERIFY(input.open(QIODevice::ReadOnly));
    PrintError error;
    DocumentList list;
    for (int i = 0; i < 2; ++i) // the second call uses the copy
        QVERIFY(list.open({u"-"_s}, &input, &error));
    QFile spool(list.documents().first().path);
    QVERIFY(spool.open(QIODevice::ReadOnly));
    QCOMPARE(spool.readAll(), contents);
    QVERIFY(!DocumentList().open({u"-"_s}, &input, &error)); // at end of file
    QCOMPARE(error.kind, PrintError::Kind::EmptyDocument);
}

// As in a dialog that saves a PDF file and prints at the same time.
void CoreValuesTest::documentsAreReadWhileTheyAreOpened()
{
    const QStringList paths(20, sourcePath("/demo/note.txt"));
    PrintError error;
    DocumentList list;
    QVERIFY(list.open(paths, nullptr, &error));
    std::atomic<bool> isDone{false};
    std::thread opener([&] {
        PrintError ignored;
        for (int i = 0; i < 100; ++i)
            (void)list.open(paths, nullptr, &ignored);
        isDone = true;
    });
    qsizetype fewest = paths.size();
    while (!isDone)
        fewest = std::min({fewest, list.documents().size(), list.title() == u"note.txt"_s ? fewest : 0});
    opener.join();
    QCOMPARE(fewest, paths.size());
}

void CoreValuesTest::filesWithoutASize_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("problem"); // null if it can be printed
    const QString pipe = m_folder.filePath(u"pipe"_s);
    QCOMPARE(::mkfifo(qPrintable(pipe), 0600), 0);
    QTest::newRow("made when it is read") << u"/proc/self/status"_s << QString();
    QTest::newRow("no writer") << pipe << u"Nothing was written into “%1”."_s.arg(pipe);
}

void CoreValuesTest::filesWithoutASize()
{
    QFETCH(QString, path);
    QFETCH(QString, problem);
    PrintError error;
    DocumentList list;
    QCOMPARE(list.open({path}, nullptr, &error), problem.isNull());
    QCOMPARE(error.message, problem);
    QVERIFY(!problem.isNull() || list.documents().first().size > 100);
}

void CoreValuesTest::brokenPpdNamesFileAndLine()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    file.write("*PPD-Adobe: \"4.3\"\n*OpenUI *PageSize/Size: PickOne\nno asterisk here\n");
    file.flush();
    PrintError error;
    QVERIFY(!PpdDocument::open(file.fileName(), &error));
    QCOMPARE(error.kind, PrintError::Kind::BrokenPpd);
    QVERIFY2(error.message.contains(file.fileName()) && error.message.contains(u"line 3"_s),
             qPrintable(error.message));
    QVERIFY(!PpdDocument::open(u"/nowhere.ppd"_s, &error));
    QCOMPARE(error.kind, PrintError::Kind::FileMissing);
}

void CoreValuesTest::documentThatNeverEnds()
{
    int ends[2];
    QCOMPARE(pipe(ends), 0);
    const platform::UniqueFd silent(ends[0]), writer(ends[1]), endless(open("/dev/zero", O_RDONLY));
    using std::chrono::milliseconds;
    const platform::Patience little{milliseconds(20), milliseconds(60'000)};
    const platform::Patience littleInAll{milliseconds(60'000), milliseconds(20)};
    const auto copy = [](int source, const platform::Patience &patience) {
        return platform::privateCopy(source, QDir::tempPath().toStdString(), platform::longestDocument,
                                     &patience);
    };
    QVERIFY(!copy(silent.get(), little));
    QCOMPARE(errno, ETIMEDOUT);
    QVERIFY(!copy(endless.get(), littleInAll));
    QCOMPARE(errno, ETIMEDOUT);
}

void CoreValuesTest::packedPpdOfAQueue()
{
    QProcess gzip;
    gzip.start(u"sh"_s, {u"-c"_s, u"head -c 50000000 /dev/zero | gzip -1"_s});
    QVERIFY(gzip.waitForFinished());
    PrintError error;
    QVERIFY(!PpdDocument::ofQueue(u"office"_s, gzip.readAllStandardOutput(), &error));
    QVERIFY2(error.message.contains(u"32 MB"_s), qPrintable(error.message));
}

void CoreValuesTest::textsOfAPpd_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("translation");
    QTest::addColumn<QString>("shown");
    const QByteArray wide = QByteArrayLiteral("\xe7\x94\xbb");
    QTest::newRow("translated") << QByteArray("Gloss") << QByteArray("Glossy") << u"Glossy"_s;
    QTest::newRow("translation is empty") << QByteArray("Gloss") << QByteArray("") << u"Gloss"_s;
    // A field of libcups has 80 bytes.
    QTest::newRow("translation is cut") << QByteArray("Gloss") << wide.repeated(30) << QString(26, u'画');
    QTest::newRow("its own text is cut")
        << "a" + wide.repeated(30) << QByteArray("") << u'a' + QString(26, u'画');
    QTest::newRow("fits") << "aa" + wide.repeated(26) << QByteArray("") << u"aa"_s + QString(26, u'画');
}

void CoreValuesTest::textsOfAPpd()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, translation);
    const auto ppd =
        openPpd("*cupsLanguages: \"de\"\n" + ppdOption("Coat/Coating", {"None/None", "Gloss/" + text}) +
                "*de.Coat Gloss/" + translation + ": \"\"\n");
    QVERIFY(ppd);
    QTEST(ppd->option(u"Coat"_s)->choices.last().text, "shown");
}

void CoreValuesTest::titlesEndBetweenCharacters()
{
    for (const QString &character : {u"a"_s, u"é"_s, u"画"_s, u"🖨"_s}) {
        for (qsizetype bytes = 0; bytes < 9; ++bytes) {
            const qsizetype size = character.toUtf8().size();
            QCOMPARE(utf8Beginning(character.repeated(9), bytes), character.toUtf8().repeated(bytes / size));
        }
        QCOMPARE(utf8Beginning(character, 9), character.toUtf8());
    }
}

void CoreValuesTest::conflictNamesBothSidesOnce()
{
    const auto ppd = openPpd(officePpd());
    QVERIFY(ppd->conflicts().isEmpty());
    QVERIFY(ppd->mark(u"ColorType"_s, u"Mono"_s));
    QVERIFY(ppd->mark(u"Cyan"_s, u"2"_s));
    QCOMPARE(ppd->conflicts().size(), 1); // although the PPD contains it in both directions
    const QList<OptionChoice> sides = ppd->conflicts().first().sides;
    QCOMPARE(sides.size(), 2);
    QCOMPARE(sides.at(0).text(), u"Colour Mode: Black and White"_s);
    QCOMPARE(sides.at(1).text(), u"Cyan Balance: Plus 2"_s);
    // A second conflict at the same time, in the form without a choice.
    QVERIFY(ppd->mark(u"MediaType"_s, u"Thick"_s));
    QCOMPARE(ppd->conflicts().size(), 1);
    QVERIFY(ppd->mark(u"Duplex"_s, u"DuplexNoTumble"_s));
    QCOMPARE(ppd->conflicts().size(), 2);
    QVERIFY(!ppd->mark(u"Duplex"_s, u"Sideways"_s));
    QCOMPARE(ppd->markedChoice(u"Duplex"_s), u"DuplexNoTumble"_s);
}

void CoreValuesTest::manyConflictsAreFoundInTime()
{
#ifdef __SANITIZE_ADDRESS__ // makes libcups and the engine dozens of times slower
    constexpr int options = 40;
#else
    constexpr int options = 300;
#endif
    QByteArray body;
    for (int i = 0; i < options; ++i) {
        const QByteArray name = "O" + QByteArray::number(i);
        body += ppdOption(name, {"A", "B"});
        for (int other = 0; other < i; ++other)
            body += ppdConstraint(name + " B", "O" + QByteArray::number(other) + " B");
    }
    const auto ppd = openPpd(ppdGroup("General/General", body));
    QVERIFY(ppd);
    QMap<QString, QString> all;
    for (int i = 0; i < options; ++i)
        all.insert(u"O%1"_s.arg(i), u"B"_s);
    ppd->markOptions(all);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(ppd->conflicts().size(), options * (options - 1) / 2);
    QVERIFY2(timer.elapsed() < 3000, qPrintable(QString::number(timer.elapsed())));
}

void CoreValuesTest::resolutionKeepsTheLastChange()
{
    const auto ppd = openPpd(officePpd());
    QVERIFY(!ppd->resolution());
    QVERIFY(ppd->mark(u"ColorType"_s, u"Mono"_s));
    QVERIFY(ppd->mark(u"Cyan"_s, u"2"_s));
    auto resolution = ppd->resolution(u"Cyan"_s);
    QVERIFY(resolution);
    QCOMPARE(resolution->size(), 1);
    QCOMPARE(resolution->first().text(), u"Colour Mode: Automatic"_s);
    resolution = ppd->resolution(u"ColorType"_s);
    QVERIFY(resolution);
    QCOMPARE(resolution->first().option, u"Cyan"_s);
    QCOMPARE(ppd->markedChoice(u"Cyan"_s), u"2"_s); // a proposal changes nothing
}

void CoreValuesTest::forbiddenChoicesSayWhy()
{
    const auto ppd = openPpd(officePpd());
    QVERIFY(ppd->forbiddenChoices(u"Cyan"_s).isEmpty());
    QVERIFY(ppd->mark(u"ColorType"_s, u"Mono"_s));
    QVERIFY(ppd->mark(u"MediaType"_s, u"Thick"_s));
    const auto cyan = ppd->forbiddenChoices(u"Cyan"_s);
    QCOMPARE(cyan.keys(), QStringList({u"1"_s, u"2"_s}));
    QCOMPARE(cyan.value(u"1"_s).text(), u"Colour Mode: Black and White"_s);
    QCOMPARE(ppd->forbiddenChoices(u"Duplex"_s).keys(), QStringList(u"DuplexNoTumble"_s));
    QCOMPARE(ppd->forbiddenChoices(u"Staple"_s).value(u"Left"_s).text(), u"Stapler: No"_s);
}

void CoreValuesTest::standardOptionsBecomeMarks()
{
    const auto ppd = openPpd(officePpd());
    ppd->markOptions(
        {{u"sides"_s, u"two-sided-long-edge"_s}, {u"ColorType"_s, u"Mono"_s}, {u"number-up"_s, u"2"_s}});
    QCOMPARE(ppd->markedChoice(u"Duplex"_s), u"DuplexNoTumble"_s);
    QCOMPARE(ppd->markedChoice(u"ColorType"_s), u"Mono"_s);
    QVERIFY(ppd->takesOption(u"sides"_s) && !ppd->takesOption(u"number-up"_s));
}

void CoreValuesTest::changedChoicesLeaveOutUnitsAndDefaults()
{
    const auto ppd = openPpd(officePpd());
    QVERIFY(ppd->changedChoices().isEmpty());
    QVERIFY(ppd->mark(u"Stapler"_s, u"True"_s));
    QVERIFY(ppd->mark(u"Staple"_s, u"Left"_s));
    QCOMPARE(ppd->changedChoices().size(), 1);
    QCOMPARE(ppd->changedChoices().first().text(), u"Stapling: Top Left"_s);
}

QTEST_GUILESS_MAIN(CoreValuesTest)
#include "core_values_test.moc"
