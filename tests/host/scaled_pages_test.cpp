// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/preview/page_counter.h"
#include "host/preview/preview.h"
#include "tests/support/paths.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace host;
using namespace Qt::StringLiterals;

namespace {

QString demo(const QString &name)
{
    return sourcePath("/demo/") + name;
}

} // namespace

class ScaledPagesTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void scalesPages_data();
    void scalesPages();
    void scalesDocumentsOfJobs_data();
    void scalesDocumentsOfJobs();

private:
    QString boxedPage(const QByteArray &attributes);

    QTemporaryDir m_folder;
};

void ScaledPagesTest::initTestCase()
{
    for (const QString &tool : u"pdftoppm pdfinfo pdftopdf texttopdf imagetopdf gs"_s.split(u' ')) {
        if (PageTools::installed().path(tool).isEmpty())
            QSKIP("cups-filters, poppler-utils or ghostscript is not installed");
    }
}

// A PDF file with a page with these attributes and a black box, whose lower left corner is at 300, 400.
QString ScaledPagesTest::boxedPage(const QByteArray &attributes)
{
    const QByteArray content = "0 g 300 400 100 60 re f";
    QFile file(m_folder.filePath(u"page.pdf"_s));
    if (!file.open(QIODevice::WriteOnly))
        qFatal("no file can be written");
    file.write("%PDF-1.4\n1 0 obj << /Type /Catalog /Pages 2 0 R >> endobj\n"
               "2 0 obj << /Type /Pages /Kids [3 0 R] /Count 1 >> endobj\n"
               "3 0 obj << /Type /Page /Parent 2 0 R /Resources << >> /Contents 4 0 R " +
               attributes + " >> endobj\n4 0 obj << /Length " + QByteArray::number(content.size()) +
               " >> stream\n" + content + "\nendstream endobj\ntrailer << /Root 1 0 R >>\n%%EOF\n");
    return file.fileName();
}

void ScaledPagesTest::scalesPages_data()
{
    QTest::addColumn<QString>("document"); // or the attributes of a page
    QTest::addColumn<int>("percent");
    const QString a4 = u"/MediaBox [0 0 595 842]"_s;
    QTest::newRow("half") << a4 << 50;
    QTest::newRow("double") << a4 << 200;
    QTest::newRow("rotated") << a4 + u" /Rotate 90"_s << 50;
    QTest::newRow("another origin") << u"/MediaBox [100 200 695 1042]"_s << 50;
    QTest::newRow("cropped and rotated")
        << u"/MediaBox [0 0 895 1142] /CropBox [100 150 695 992] /Rotate 270"_s << 150;
    QTest::newRow("trimmed") << u"/MediaBox [0 0 895 1142] /TrimBox [100 150 695 992]"_s << 50;
    QTest::newRow("PostScript") << u"report.ps"_s << 70;
    QTest::newRow("text") << u"note.txt"_s << 70;
    QTest::newRow("picture") << u"picture.png"_s << 50;
}

// About the center of a page of the same size.
void ScaledPagesTest::scalesPages()
{
    QFETCH(const QString, document);
    QFETCH(const int, percent);
    Preview preview(PageTools::installed());
    QSignalSpy made(&preview, &Preview::pageMade);
    preview.setWatched(true);
    preview.setDocument(document.startsWith(u'/') ? boxedPage(document.toLatin1()) : demo(document));
    const auto drawnAt = [&](int size) { // relative to the center
        PageSettings settings{{}, {.width = 210, .height = 297}};
        settings.percent = size;
        made.clear();
        preview.setSettings(settings);
        (void)preview.page(0);
        if (made.isEmpty() && !made.wait(20'000))
            qFatal("%s", qPrintable(preview.problem()));
        const QImage page = preview.page(0);
        QRect drawn;
        for (int y = 0; y < page.height(); ++y) {
            for (int x = 0; x < page.width(); ++x) {
                if (qGray(page.pixel(x, y)) < 128)
                    drawn |= QRect(x, y, 1, 1);
            }
        }
        return drawn.isEmpty() ? QRectF() : QRectF(drawn).translated(-QRectF(page.rect()).center());
    };
    const QRectF natural = drawnAt(100), scaled = drawnAt(percent);
    QVERIFY(!natural.isEmpty() && !scaled.isEmpty());
    constexpr double tolerance = 3; // pixels
    const double factor = percent / 100.0;
    for (const auto side : {&QRectF::left, &QRectF::top, &QRectF::right, &QRectF::bottom}) {
        const double wanted = (natural.*side)() * factor, is = (scaled.*side)();
        QVERIFY2(qAbs(is - wanted) < tolerance, qPrintable(u"%1 %2"_s.arg(is).arg(wanted)));
    }
}

void ScaledPagesTest::scalesDocumentsOfJobs_data()
{
    QTest::addColumn<QStringList>("documents");
    QTest::addColumn<QString>("pages");
    QTest::addColumn<QString>("tools");   // null for the installed ones
    QTest::addColumn<QString>("message"); // null where something is printed
    const QString pdf = u"report.pdf"_s, picture = u"picture.png"_s;
    QTest::newRow("scaled") << QStringList{pdf, u"report.ps"_s, u"note.txt"_s, picture} << QString()
                            << QString() << QString();
    QTest::newRow("no page of a picture")
        << QStringList{picture} << u"3"_s << QString()
        << u"The settings leave no page to print: the document has only one page."_s;
    QTest::newRow("drawing") << QStringList{pdf, u"../packaging/kelmar-print.svg"_s} << QString() << QString()
                             << u"“Letter” cannot be scaled: there is no program here"_s;
    QTest::newRow("no interpreter") << QStringList{pdf} << QString() << u"/nowhere"_s
                                    << u"“Letter” cannot be scaled: gs is not installed."_s;
}

void ScaledPagesTest::scalesDocumentsOfJobs()
{
    QFETCH(const QStringList, documents);
    QFETCH(const QString, pages);
    QFETCH(const QString, tools);
    QFETCH(const QString, message);
    QList<Document> list;
    PrintError error;
    for (const QString &name : documents) {
        list.append(*openDocument(demo(name), &error));
        list.last().name = u"Letter"_s;
    }
    PageSettings settings;
    settings.percent = 50;
    if (!pages.isEmpty())
        settings.options.append({u"page-ranges"_s, pages});
    const PageVerdict verdict =
        checkPages(tools.isNull() ? PageTools::installed() : PageTools{{tools}}, list, settings);
    QVERIFY2(verdict.message.startsWith(message), qPrintable(verdict.message));
    QCOMPARE(verdict.kind == PageVerdict::Kind::Printable, message.isNull());
    if (!message.isNull())
        return;
    QCOMPARE(verdict.files.size(), list.size());
    for (const Document &document : verdict.documents) {
        QCOMPARE(document.name, u"Letter"_s);
        QCOMPARE(document.format, u"application/pdf"_s);
    }
}

QTEST_MAIN(ScaledPagesTest)
#include "scaled_pages_test.moc"
