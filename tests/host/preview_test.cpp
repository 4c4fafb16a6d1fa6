// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/preview/page_counter.h"
#include "host/preview/pdf_writer.h"
#include "host/preview/preview.h"
#include "tests/support/hostile_program.h"
#include "tests/support/paths.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

#include <sys/stat.h>
#include <unistd.h>

using namespace host;
using namespace Qt::StringLiterals;

namespace {

QString demo(const QString &name)
{
    return sourcePath("/demo/") + name;
}

const QStringList allTools =
    u"pdftoppm pdfinfo qpdf pdftopdf texttopdf imagetopdf gziptoany gs"_s.split(u' ');

bool hasTools()
{
    const auto isMissing = [](const QString &tool) { return PageTools::installed().path(tool).isEmpty(); };
    return std::none_of(allTools.begin(), allTools.end(), isMissing);
}

// Processes with a word in their command line.
QStringList processesWith(const QString &word)
{
    QStringList found;
    for (const QString &process : QDir(u"/proc"_s).entryList({u"[0-9]*"_s}, QDir::Dirs)) {
        QFile words(u"/proc/"_s + process + u"/cmdline"_s);
        if (words.open(QIODevice::ReadOnly) && words.readAll().contains(word.toUtf8()))
            found.append(process);
    }
    return found;
}

// An image of two by two pixels for each requested page.
const QByteArray drawsPages = "shift; first=$1; shift 2; last=$1\n"
                              "while [ $first -le $last ]; do printf 'P5\\n2 2\\n255\\nabcd';"
                              " first=$((first + 1)); done\n";

} // namespace

class PreviewTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void showsWhatIsPrinted_data();
    void showsWhatIsPrinted();
    void saysWhetherAnythingIsPrinted_data();
    void saysWhetherAnythingIsPrinted();
    void firstPageIsQuick();
    void survivesItsPrograms_data();
    void survivesItsPrograms();
    void hostileProgramsAreRefused_data();
    void hostileProgramsAreRefused();
    void hostileDocumentIsRefused();
    void thousandsOfPages();
    void endsWhenHidden();
    void writesPdf();
    void keepsWhatItCannotReplace();

private:
    void fake(const QString &program, const QByteArray &script);
    void fakeAll();
    PrintError write(const PageTools &tools, const QStringList &paths, const QString &target);

    std::unique_ptr<QTemporaryDir> m_folder;
};

void PreviewTest::fake(const QString &program, const QByteArray &script)
{
    QFile file(m_folder->filePath(program));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("#!/bin/sh\n" + script);
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void PreviewTest::fakeAll()
{
    fake(u"pdftopdf"_s, "cat /dev/stdin\n");
    fake(u"pdfinfo"_s, "echo 'Pages:           3'; echo 'Page size:       595 x 842 pts (A4)'\n");
    fake(u"pdftoppm"_s, drawsPages);
    fake(u"qpdf"_s, "cat /dev/stdin\n");
}

void PreviewTest::showsWhatIsPrinted_data()
{
    QTest::addColumn<QString>("document");
    QTest::addColumn<PageSettings>("settings");
    QTest::addColumn<int>("pages");  // of the document
    QTest::addColumn<int>("sides");  // in the output
    QTest::addColumn<QSize>("size"); // of the first, in millimetres
    const PaperSize a4{.width = 210, .height = 297}, a5{.width = 148, .height = 210};
    const QSize A4(210, 297);
    QTest::newRow("PDF") << u"report.pdf"_s << PageSettings{{}, a4} << 2 << 2 << A4;
    QTest::newRow("two a side") << u"report.pdf"_s << PageSettings{{{u"number-up"_s, u"2"_s}}, a4} << 2 << 1
                                << QSize(210, 297);
    const PageSettings booklet{{{u"booklet"_s, u"true"_s}}, a4}, mirrored{{{u"mirror"_s, u"true"_s}}, a4};
    QTest::newRow("booklet") << u"report.pdf"_s << booklet << 2 << 2 << QSize(297, 210);
    QTest::newRow("mirrored") << u"report.pdf"_s << mirrored << 2 << 2 << A4;
    QTest::newRow("odd") << u"report.pdf"_s << PageSettings{{{u"page-set"_s, u"odd"_s}}, a4} << 2 << 1 << A4;
    QTest::newRow("range") << u"report.pdf"_s << PageSettings{{{u"page-ranges"_s, u"2"_s}}, a4} << 2 << 1
                           << A4;
    QTest::newRow("paper") << u"report.pdf"_s << PageSettings{{}, a5} << 2 << 2 << QSize(148, 210);
    QTest::newRow("PostScript") << u"report.ps"_s << PageSettings{{}, a4} << 2 << 2 << A4;
    QTest::newRow("text") << u"note.txt"_s << PageSettings{{}, a4} << 1 << 1 << A4;
    QTest::newRow("picture") << u"picture.png"_s << PageSettings{{}, a4} << 1 << 1 << A4;
    QTest::newRow("monochrome") << u"picture.png"_s << PageSettings{{}, a4, true} << 1 << 1 << A4;
}

void PreviewTest::showsWhatIsPrinted()
{
    if (!hasTools())
        QSKIP("cups-filters, poppler-utils or ghostscript is not installed");
    QFETCH(const QString, document);
    QFETCH(const PageSettings, settings);
    QFETCH(const int, pages);
    QFETCH(const int, sides);
    QFETCH(const QSize, size);
    Preview preview(PageTools::installed());
    QSignalSpy made(&preview, &Preview::pageMade);
    preview.setSettings(settings);
    preview.setWatched(true);
    preview.setDocument(demo(document));
    QVERIFY(preview.page(0).isNull());
    QTRY_COMPARE(made.count(), 1);
    QTRY_VERIFY2(preview.facts(), qPrintable(preview.problem()));
    PageCounter counter(PageTools::installed());
    counter.count({demo(document)}, settings);
    QTRY_COMPARE(counter.pagesOf(demo(document)), pages);
    QCOMPARE(preview.facts()->pages, sides);
    const QImage page = preview.page(0);
    QCOMPARE(qMax(page.width(), page.height()), Preview::pagePixels);
    const double ratio = double(page.width()) / page.height();
    const double upright = double(size.width()) / size.height();
    QVERIFY2(qAbs(ratio - upright) < 0.01 || qAbs(ratio - 1 / upright) < 0.02,
             qPrintable(QString::number(ratio)));
    bool isColored = false;
    int left = 0, right = 0; // dark pixels
    for (int y = 0; y < page.height(); ++y) {
        for (int x = 0; x < page.width(); ++x) {
            const QRgb pixel = page.pixel(x, y);
            isColored |= qRed(pixel) != qGreen(pixel) || qGreen(pixel) != qBlue(pixel);
            (x < page.width() / 2 ? left : right) += qGray(pixel) < 128;
        }
    }
    QVERIFY(left + right > 0);
    if (sides == pages && document.startsWith(u"report") && size == QSize(210, 297)) // is aligned at the left
        QCOMPARE(right > left, settings.optionText().contains(u"mirror"));
    if (document == u"picture.png"_s)
        QCOMPARE(isColored, !settings.isMonochrome);
}

void PreviewTest::saysWhetherAnythingIsPrinted_data()
{
    QTest::addColumn<QStringList>("documents"); // "secret", "closed" and "cut" are made from report.pdf
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("message"); // null where something is printed
    const QString noPage = u"The settings leave no page "_s;
    const QStringList report{u"report.pdf"_s}; // two pages
    QTest::newRow("all") << report << QStringList() << QString();
    QTest::newRow("last") << report << QStringList{u"page-ranges=2"_s} << QString();
    QTest::newRow("behind the end") << report << QStringList{u"page-ranges=3-4,9-"_s}
                                    << noPage + u"to print: the document has only 2 pages."_s;
    QTest::newRow("sides") << report << QStringList{u"page-ranges=2"_s, u"number-up=2"_s}
                           << noPage + u"to print: there is only one printed side."_s;
    const QString booklet = u"booklet=true"_s;
    QTest::newRow("booklet") << report << QStringList{u"page-ranges=3"_s, booklet}
                             << noPage + u"to print: there are only 2 printed sides."_s;
    QTest::newRow("even of one") << QStringList{u"note.txt"_s} << QStringList{u"page-set=even"_s}
                                 << noPage + u"to print: the document has only one page."_s;
    QTest::newRow("even in a range") << report << QStringList{u"page-set=even"_s, u"page-ranges=1"_s}
                                     << noPage + u"to print: the document has only 2 pages."_s;
    QTest::newRow("PostScript") << QStringList{u"report.ps"_s} << QStringList{u"page-ranges=3"_s}
                                << noPage + u"to print: the document has only 2 pages."_s;
    QTest::newRow("PostScript booklet") << QStringList{u"report.ps"_s} << QStringList{booklet}
                                        << u"“Letter” cannot be printed: the print server"_s;
    QTest::newRow("picture") << QStringList{u"picture.png"_s} << QStringList{u"page-ranges=3"_s} << QString();
    QTest::newRow("one of two") << QStringList{u"report.pdf"_s, u"note.txt"_s}
                                << QStringList{u"page-ranges=2"_s} << QString();
    QTest::newRow("none of two") << QStringList{u"report.pdf"_s, u"note.txt"_s}
                                 << QStringList{u"page-ranges=5"_s} << noPage + u"of any document"_s;
    QTest::newRow("password") << QStringList{u"secret"_s} << QStringList()
                              << u"“Letter” cannot be printed: it needs a password."_s;
    QTest::newRow("no right") << QStringList{u"report.pdf"_s, u"closed"_s} << QStringList()
                              << u"“Letter” cannot be printed: its author does not"_s;
    QTest::newRow("cut off") << QStringList{u"cut"_s} << QStringList()
                             << u"“Letter” cannot be printed: it is damaged or not complete."_s;
}

void PreviewTest::saysWhetherAnythingIsPrinted()
{
    if (!hasTools())
        QSKIP("cups-filters, poppler-utils or ghostscript is not installed");
    QFETCH(const QStringList, documents);
    QFETCH(const QStringList, options);
    QFETCH(const QString, message);
    const QString report = demo(u"report.pdf"_s), made = m_folder->filePath(u"made.pdf"_s);
    QList<Document> list;
    PrintError error;
    for (const QString &name : documents) {
        QStringList encrypt{u"--encrypt"_s, name == u"secret"_s ? u"open"_s : QString(), u"owner"_s,
                            u"256"_s};
        if (name == u"closed"_s)
            encrypt.append(u"--print=none"_s);
        if (name == u"secret"_s || name == u"closed"_s)
            QCOMPARE(QProcess::execute(u"qpdf"_s, encrypt + QStringList{u"--"_s, report, made}), 0);
        if (name == u"cut"_s)
            QVERIFY(QFile::copy(report, made) && QFile::resize(made, 300));
        list.append(*openDocument(name.contains(u'.') ? demo(name) : made, &error));
        list.last().name = u"Letter"_s;
    }
    PageSettings settings;
    for (const QString &option : options)
        settings.options.append({option.section(u'=', 0, 0), option.section(u'=', 1)});
    const PageVerdict verdict = checkPages(PageTools::installed(), list, settings);
    QVERIFY2(verdict.message.startsWith(message), qPrintable(verdict.message));
    QCOMPARE(verdict.kind == PageVerdict::Kind::Printable, message.isNull());
}

void PreviewTest::firstPageIsQuick()
{
    if (!hasTools())
        QSKIP("cups-filters, poppler-utils or ghostscript is not installed");
    QProcess::execute(u"pdftoppm"_s, {demo(u"report.pdf"_s), m_folder->filePath(u"p"_s)}); // fills caches
    qint64 best = 10'000;
    for (int i = 0; i < 10 && best >= 300; ++i) { // the machine may be busy
        Preview preview(PageTools::installed());
        QSignalSpy made(&preview, &Preview::pageMade);
        preview.setWatched(true);
        QElapsedTimer time;
        time.start();
        preview.setDocument(demo(u"report.pdf"_s));
        (void)preview.page(0);
        QVERIFY(made.wait());
        best = qMin(best, time.elapsed());
    }
    qInfo("first page after %lld ms", best);
    QVERIFY(best < 300);
}

void PreviewTest::survivesItsPrograms_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("problem");
    const QByteArray hangs = "exec tail -f /dev/null\n";
    const QByteArray crashes = "exec perl -e 'unpack(\"p\", pack(\"J\", 16))'\n";
    QTest::newRow("hanging renderer") << u"pdftoppm"_s << hangs << u"pdftoppm failed: it took too long"_s;
    QTest::newRow("hanging filter") << u"pdftopdf"_s << hangs << u"pdftopdf failed: it took too long"_s;
    QTest::newRow("crash") << u"pdftoppm"_s << crashes << u"pdftoppm failed: it ended unexpectedly"_s;
    QTest::newRow("flood") << u"pdftoppm"_s << QByteArray("exec cat /dev/zero\n")
                           << u"pdftoppm failed: it wrote too much"_s;
    QTest::newRow("flood of words") << u"pdftoppm"_s << QByteArray("cat /dev/zero >&2\n") << u"pdftoppm "_s;
    QTest::newRow("failure") << u"pdftopdf"_s << QByteArray("exit 1\n")
                             << u"pdftopdf cannot read the document"_s;
    QTest::newRow("no page chosen") << u"pdftopdf"_s << QByteArray("exit 0\n")
                                    << u"the settings leave no page of the document"_s;
    QTest::newRow("huge picture") << u"pdftoppm"_s << QByteArray("printf 'P6\\n999999 999999\\n255\\nabc'\n")
                                  << u"pdftoppm cannot read the document"_s;
    QTest::newRow("cut picture") << u"pdftoppm"_s << QByteArray("printf 'P6\\n90 90\\n255\\nabc'\n")
                                 << u"pdftoppm cannot read the document"_s;
    QTest::newRow("no number of pages")
        << u"pdfinfo"_s << QByteArray("echo Pages: many\n") << u"the pages cannot be counted"_s;
    QTest::newRow("too many pages") << u"pdfinfo"_s << QByteArray("echo 'Pages:  999999999'\n")
                                    << u"the pages cannot be counted"_s;
    QTest::newRow("missing") << u"pdftoppm"_s << QByteArray() << u"pdftoppm is not installed"_s;
}

void PreviewTest::survivesItsPrograms()
{
    QFETCH(const QString, program);
    QFETCH(const QByteArray, script);
    QFETCH(const QString, problem);
    fakeAll();
    if (script.isEmpty())
        QVERIFY(QFile::remove(m_folder->filePath(program)));
    else
        fake(program, script);
    LimitedProcess::Limits limits{std::chrono::seconds(20), qint64(1) << 30, 1 << 20};
    if (problem.endsWith(u"too long"_s) || problem == u"pdftoppm "_s)
        limits.time = std::chrono::seconds(1);
    Preview preview({{m_folder->path()}});
    preview.setLimits(limits);
    preview.setWatched(true);
    preview.setDocument(demo(u"report.pdf"_s));
    (void)preview.page(0);
    QTRY_VERIFY2(preview.problem().startsWith(problem), qPrintable(preview.problem()));
    limits.time = std::chrono::seconds(20);
    preview.setLimits(limits);
    fakeAll(); // and the next document is shown
    preview.setDocument(demo(u"../demo/report.pdf"_s));
    QSignalSpy made(&preview, &Preview::pageMade);
    (void)preview.page(0);
    QTRY_VERIFY(!made.isEmpty());
    QCOMPARE(preview.page(0).size(), QSize(2, 2));
}

void PreviewTest::hostileProgramsAreRefused_data()
{
    QTest::addColumn<QString>("document"); // each is read by different programs
    for (const QString &document :
         {u"report.pdf"_s, u"report.ps"_s, u"note.txt"_s, u"picture.png"_s, u"note.txt.gz"_s})
        QTest::newRow(qPrintable(document)) << document;
}

void PreviewTest::hostileProgramsAreRefused()
{
    if (!hasTools())
        QSKIP("cups-filters, poppler-utils or ghostscript is not installed");
    QFETCH(const QString, document);
    const PageTools tools = PageTools::installed(), hostile{{m_folder->path()}};
    QVERIFY(QDir(m_folder->path()).mkdir(u"tmp"_s));
    HostileProgram program(m_folder->filePath(u"tmp"_s));
    for (const QString &tool : allTools)
        program.standIn(m_folder->filePath(tool), tools.path(tool));
    QProcess unconfined; // can do all of it
    unconfined.start(m_folder->filePath(u"gs"_s), {});
    QVERIFY(unconfined.waitForFinished());
    QCOMPARE(unconfined.exitCode(), 9);
    QVERIFY(unconfined.readAllStandardError().count(' ') >= 12); // 14 if a parent's memory may be read
    QTRY_COMPARE(program.damage().size(), 8); // four files, two new ones, and two processes
    program.putBack();
    QString path = demo(document);
    if (document.endsWith(u".gz"_s)) {
        QProcess packer;
        path = m_folder->filePath(document);
        packer.setStandardOutputFile(path);
        packer.start(u"gzip"_s, {u"-c"_s, demo(document.chopped(3))});
        QVERIFY(packer.waitForFinished());
    }
    const QString target = m_folder->filePath(u"out.pdf"_s);
    QImage pages[2], written[2];
    for (const bool isHostile : {false, true}) {
        const PageTools &used = isHostile ? hostile : tools;
        Preview preview(used);
        preview.setWatched(true);
        preview.setDocument(path);
        QTRY_VERIFY2(!(pages[isHostile] = preview.page(0)).isNull(), qPrintable(preview.problem()));
        const PrintError error = write(used, {path}, target);
        QVERIFY2(!error, qPrintable(error.message));
        Preview again(tools);
        again.setWatched(true);
        again.setDocument(target);
        QTRY_VERIFY2(!(written[isHostile] = again.page(0)).isNull(), qPrintable(again.problem()));
    }
    QCOMPARE(pages[1], pages[0]);
    QCOMPARE(written[1], written[0]);
    QTRY_COMPARE(program.damage(), QStringList());
}

void PreviewTest::hostileDocumentIsRefused()
{
    if (!hasTools())
        QSKIP("cups-filters, poppler-utils or ghostscript is not installed");
    QVERIFY(QDir(m_folder->path()).mkdir(u"tmp"_s));
    HostileProgram program(m_folder->filePath(u"tmp"_s));
    const QString path = m_folder->filePath(u"hostile.ps"_s), target = m_folder->filePath(u"out.pdf"_s);
    QFile document(path);
    QVERIFY(document.open(QIODevice::WriteOnly));
    document.write(program.postScript());
    document.close();
    const PrintError error = write(PageTools::installed(), {path}, target);
    QVERIFY2(!error, qPrintable(error.message));
    for (const QString &shown : {path, target}) {
        Preview preview(PageTools::installed());
        preview.setWatched(true);
        preview.setDocument(shown);
        QTRY_VERIFY2(preview.facts(), qPrintable(preview.problem()));
        QCOMPARE(preview.facts()->pages, 1);
    }
    QTRY_COMPARE(program.damage(), QStringList());
    qputenv("TMPDIR", "/nowhere"); // without a private folder no program runs
    Preview preview(PageTools::installed());
    preview.setWatched(true);
    preview.setDocument(path);
    QTRY_COMPARE(preview.problem(), u"gs failed: it cannot be started: No such file or directory"_s);
}

void PreviewTest::thousandsOfPages()
{
    fakeAll();
    fake(u"pdfinfo"_s, "echo 'Pages:  5000'\n");
    fake(u"pdftoppm"_s, "[ $2-$4 = 4996-5000 ] || exit 1\n" + drawsPages);
    Preview preview({{m_folder->path()}});
    preview.setWatched(true);
    preview.setDocument(demo(u"report.pdf"_s));
    QTRY_VERIFY(preview.facts());
    QCOMPARE(preview.facts()->pages, 5000);
    QSignalSpy made(&preview, &Preview::thumbnailsMade);
    QVERIFY(preview.thumbnail(4995).isNull());
    QTRY_COMPARE(made.count(), 1);
    QCOMPARE(made.first(), (QVariantList{4995, 4999}));
    QVERIFY(!preview.thumbnail(4999).isNull());
}

void PreviewTest::endsWhenHidden()
{
    fakeAll();
    fake(u"pdftoppm"_s, "tail -f /dev/null '" + m_folder->path().toUtf8() + "/draws'\n");
    Preview preview({{m_folder->path()}});
    preview.setWatched(true);
    preview.setDocument(demo(u"report.pdf"_s));
    (void)preview.page(0);
    QTRY_COMPARE(processesWith(m_folder->filePath(u"draws"_s)).size(), 1);
    preview.setWatched(false);
    QTRY_COMPARE(processesWith(m_folder->path()), QStringList());
    fakeAll();
    QSignalSpy made(&preview, &Preview::pageMade);
    preview.setWatched(true);
    QTRY_COMPARE(made.count(), 1);
}

PrintError PreviewTest::write(const PageTools &tools, const QStringList &paths, const QString &target)
{
    DocumentList documents;
    PrintError error;
    if (!documents.open(paths, nullptr, &error))
        return error;
    PdfWriter writer(tools);
    QSignalSpy ended(&writer, &PdfWriter::ended);
    connect(&writer, &PdfWriter::ended, this, [&](const SharedFile &pdf, const PrintError &told) {
        error = pdf ? replaceFile(target, pdf) : told;
    });
    writer.write(documents.documents(), {{{u"number-up"_s, u"2"_s}}, {}});
    if (ended.isEmpty() && !ended.wait(20'000))
        qFatal("nothing has been written");
    return error;
}

void PreviewTest::writesPdf()
{
    if (!hasTools())
        QSKIP("cups-filters, poppler-utils or ghostscript is not installed");
    const QString target = m_folder->filePath(u"out.pdf"_s), another = m_folder->filePath(u"in.pdf"_s);
    QVERIFY(QFile::copy(demo(u"report.pdf"_s), another));
    QVERIFY(::chmod(qPrintable(another), 0600) == 0);
    if (geteuid() == 0) // root may read other users' files
        QVERIFY(::chown(qPrintable(another), 1234, 1234) == 0);
    const PrintError error = write(PageTools::installed(), {another, demo(u"note.txt"_s)}, target);
    QVERIFY2(!error, qPrintable(error.message));
    Preview preview(PageTools::installed());
    preview.setWatched(true);
    preview.setDocument(target);
    QTRY_VERIFY(preview.facts());
    QCOMPARE(preview.facts()->pages, 2);
}

void PreviewTest::keepsWhatItCannotReplace()
{
    fakeAll();
    const PageTools tools{{m_folder->path()}};
    QFile kept(m_folder->filePath(u"kept"_s));
    QVERIFY(kept.open(QIODevice::ReadWrite));
    kept.write("mine");
    kept.flush();
    const QString link = m_folder->filePath(u"link.pdf"_s);
    QVERIFY(QFile::link(kept.fileName(), link));
    const auto check = [&](const QString &target, const QString &reason) {
        const PrintError error = write(tools, {demo(u"report.pdf"_s)}, target);
        QVERIFY2(error.message.contains(reason), qPrintable(error.message));
        kept.seek(0);
        QCOMPARE(kept.readAll(), "mine");
    };
    check(link, u"link to another file"_s);
    check(m_folder->path(), u"not a file"_s);
    check(m_folder->filePath(u"none/out.pdf"_s), u"none/out.pdf"_s);
    fake(u"pdftopdf"_s, "printf half; exit 1\n");
    check(kept.fileName(), u"report.pdf"_s);
    QCOMPARE(QDir(m_folder->path()).entryList({u"*.pdf.*"_s, u"kept.*"_s}, QDir::Files), QStringList());
}

QTEST_MAIN(PreviewTest)
#include "preview_test.moc"
