// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/preview/preview.h"
#include "host/window/pages/page_book.h"
#include "host/window/pages/page_list.h"
#include "host/window/preview/preview_dialog.h"
#include "host/window/preview/preview_pane.h"
#include "host/window/preview/preview_sheet.h"
#include "host/window/preview/preview_strip.h"
#include "tests/host/window_fixture.h"
#include "tests/support/paths.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QWheelEvent>

using namespace host;
using namespace Qt::StringLiterals;

namespace {

const QString report = sourcePath("/demo/report.pdf");

// An image of two by two pixels for each requested page.
const QByteArray drawsPages = "shift; first=$1; shift 2; last=$1\n"
                              "while [ $first -le $last ]; do printf 'P5\\n2 2\\n255\\nabcd';"
                              " first=$((first + 1)); done\n";

} // namespace

// The preview in the window: its thumbnails, and its page, which can be enlarged.
class PreviewPaneTest : public WindowFixture
{
    Q_OBJECT
private Q_SLOTS:
    void smallPagesAppear();
    void pagesAreLeftOut();
    void pageIsEnlarged();
    void rendersLarger();
    void fewerPagesThanBefore();
    void isOnEveryPage_data();
    void isOnEveryPage();

private:
    void fake(const QString &program, const QByteArray &script);
    void fakeAll();

    QTemporaryDir m_folder; // of the programs
};

void PreviewPaneTest::fake(const QString &program, const QByteArray &script)
{
    QFile file(m_folder.filePath(program));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("#!/bin/sh\n" + script);
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void PreviewPaneTest::fakeAll()
{
    fake(u"pdftopdf"_s, "cat /dev/stdin\n");
    fake(u"pdfinfo"_s, "echo 'Pages:  1'; echo 'Page size:  595 x 842 pts'\n");
    fake(u"pdftoppm"_s, drawsPages);
}

// In the window, and not only when a test requests an image.
void PreviewPaneTest::smallPagesAppear()
{
    if (!hasPreview())
        QSKIP("cups-filters or poppler-utils is not installed");
    openWith({report});
    auto *strip = find<PreviewStrip>();
    QTRY_VERIFY(strip && strip->model()->rowCount() == 2);
    for (int row = 0; row < 2; ++row) {
        const auto isThere = [&] {
            const QWidget *view = strip->viewport();
            const QRect item = strip->visualRect(strip->model()->index(row, 0));
            const QPoint at = view->mapTo(m_window.get(), QPoint(item.center().x(), item.top() + 20));
            const QPixmap point = m_window->screen()->grabWindow(m_window->winId(), at.x(), at.y(), 1, 1);
            return point.toImage().pixel(0, 0) != m_window->palette().window().color().rgb();
        };
        QTRY_VERIFY2(isThere(), qPrintable(QString::number(row)));
    }
    QVERIFY(!strip->hasFocus());
    QTest::mouseClick(strip->viewport(), Qt::LeftButton, {},
                      strip->visualRect(strip->model()->index(1, 0)).center());
    QCOMPARE(strip->current(), 1);
}

// With the check boxes of the thumbnails, by mouse and keyboard.
void PreviewPaneTest::pagesAreLeftOut()
{
    if (!hasPreview())
        QSKIP("cups-filters or poppler-utils is not installed");
    openWith({report});
    auto *strip = find<PreviewStrip>();
    QTRY_VERIFY(strip && strip->model()->rowCount() == 2);
    const auto isTicked = [strip](int row) {
        return strip->model()->index(row, 0).data(Qt::CheckStateRole).toInt() == Qt::Checked;
    };
    const QStyle *style = strip->style();
    QStyleOptionViewItem option;
    option.initFrom(strip);
    option.features = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDecoration |
                      QStyleOptionViewItem::HasDisplay;
    option.decorationPosition = QStyleOptionViewItem::Top;
    option.decorationSize = strip->iconSize();
    option.text = u"2"_s;
    option.rect = strip->visualRect(strip->model()->index(1, 0));
    const QRect box = style->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, strip);
    QTest::mouseClick(strip->viewport(), Qt::LeftButton, {}, box.center());
    auto *field = find<QLineEdit>(u"page-ranges"_s);
    QCOMPARE(field->text(), u"1"_s);
    QVERIFY(field->isEnabled() && isTicked(0) && !isTicked(1));
    QCOMPARE(m_window->session()->general().pages, u"1"_s);
    QCOMPARE(strip->model()->rowCount(), 2); // it can still be included again
    strip->setFocus();
    strip->setCurrent(0);
    QTest::keyClick(strip, Qt::Key_Space); // at least one page must be left
    QVERIFY(isTicked(0));
    strip->setCurrent(1);
    QTest::keyClick(strip, Qt::Key_Space);
    QVERIFY(isTicked(1));
    QCOMPARE(m_window->session()->general().pages, QString());
    choose(u"page-set"_s, u"odd"_s); // the numbers are no longer those of the document
    QTRY_COMPARE(strip->model()->rowCount(), 1);
    QVERIFY(!strip->model()->index(0, 0).data(Qt::CheckStateRole).isValid());
}

// With keys and wheel. The page is then rendered larger, and scrolled.
void PreviewPaneTest::pageIsEnlarged()
{
    if (!hasPreview())
        QSKIP("cups-filters or poppler-utils is not installed");
    openWith({report});
    auto *sheet = find<PreviewSheet>();
    auto *preview = find<Preview>();
    const auto renderedPixels = [preview] {
        const QImage page = preview->page(0);
        return qMax(page.width(), page.height());
    };
    QTRY_VERIFY(sheet->pixels() > 0);
    QCOMPARE(sheet->focusPolicy(), Qt::NoFocus);
    const QLabel *size = nullptr;
    for (const auto *label : m_window->findChildren<QLabel *>())
        size = label->text() == u"1×" ? label : size;
    QVERIFY(size && size->isHidden()); // it is announced when it appears
    for (int i = 0; i < 9; ++i)
        QTest::keyClick(m_window.get(), Qt::Key_Plus, Qt::ControlModifier);
    QCOMPARE(sheet->zoom(), 4.0);
    QVERIFY(size->isVisible());
    QCOMPARE(size->accessibleName(), u"4×"_s);
    const int enlarged = sheet->pixels();
    QVERIFY(enlarged > Preview::pagePixels);
    QTRY_VERIFY(renderedPixels() >= sheet->pixels());
    QScrollBar *across = sheet->horizontalScrollBar(), *down = sheet->verticalScrollBar();
    // The middle stays in place, except for the space of the scroll bars that appear.
    QVERIFY(across->maximum() > 0 && qAbs(down->value() - down->maximum() / 2) < sheet->pixels() / 20);
    sheet->setFocus();
    const int before = down->value();
    QTest::keyClick(sheet, Qt::Key_Down);
    QVERIFY(down->value() > before);
    const QPoint from = sheet->viewport()->rect().center(), to = from + QPoint(30, 20);
    const QPoint at(across->value(), down->value());
    QTest::mousePress(sheet->viewport(), Qt::LeftButton, {}, from);
    QMouseEvent move(QEvent::MouseMove, to, sheet->viewport()->mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                     {});
    QApplication::sendEvent(sheet->viewport(), &move);
    QTest::mouseRelease(sheet->viewport(), Qt::LeftButton, {}, to);
    QCOMPARE(QPoint(across->value(), down->value()), at - QPoint(30, 20));
    QWheelEvent wheel(from, sheet->viewport()->mapToGlobal(from), {}, {0, -120}, Qt::NoButton,
                      Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(sheet->viewport(), &wheel);
    QCOMPARE(sheet->zoom(), 3.0);
    QTest::keyClick(m_window.get(), Qt::Key_0, Qt::ControlModifier);
    QCOMPARE(sheet->zoom(), 1.0);
    QVERIFY(across->maximum() == 0 && down->maximum() == 0);
    QVERIFY2(qAbs(enlarged - 4 * sheet->pixels()) < 8,
             qPrintable(u"%1, and %2 without zoom"_s.arg(enlarged).arg(sheet->pixels())));
}

// The known image of a page stays available meanwhile, and remains if the page cannot be rendered larger.
void PreviewPaneTest::rendersLarger()
{
    fakeAll();
    const QByteArray draws = "size=$6; [ $size -le 2000 ] || exit 1\n"
                             "printf \"P5\\n$size $size\\n255\\n\"; head -c $((size * size)) /dev/zero\n";
    fake(u"pdftoppm"_s, draws);
    Preview preview({{m_folder.path()}});
    QSignalSpy made(&preview, &Preview::pageMade);
    preview.setWatched(true);
    preview.setDocument(report);
    (void)preview.page(0);
    QTRY_COMPARE(made.count(), 1);
    QCOMPARE(preview.page(0).width(), Preview::pagePixels);
    QVERIFY(preview.setPagePixels(1800));
    QCOMPARE(preview.page(0).width(), Preview::pagePixels);
    QTRY_COMPARE(made.count(), 2);
    QCOMPARE(preview.page(0).width(), 1800);
    QVERIFY(preview.setPagePixels(1'000'000));
    QCOMPARE(preview.page(0).width(), 1800);
    bool isReduced = false; // to what is possible
    QTRY_VERIFY(isReduced = isReduced || preview.setPagePixels(Preview::mostPixels));
    fake(u"pdftoppm"_s, QByteArray(draws).replace("2000", "3600"));
    (void)preview.page(0);
    QTRY_COMPARE(preview.page(0).width(), Preview::mostPixels);
    QVERIFY(preview.problem().isNull());
}

void PreviewPaneTest::fewerPagesThanBefore()
{
    fakeAll();
    fake(u"pdfinfo"_s, "echo 'Pages:  40'\n");
    Preview preview({{m_folder.path()}});
    preview.setWatched(true);
    preview.setDocument(report);
    QTRY_VERIFY(preview.facts());
    (void)preview.thumbnail(30); // still requested when there are fewer pages
    fake(u"pdfinfo"_s, "echo 'Pages:  10'\n");
    preview.setSettings({{{u"number-up"_s, u"4"_s}}, {}});
    QTRY_VERIFY(preview.facts() && preview.facts()->pages == 10);
    QTRY_VERIFY(!preview.thumbnail(0).isNull());
}

// On a page without space for it, it is in a window of its own.
void PreviewPaneTest::isOnEveryPage_data()
{
    QTest::addColumn<QSize>("room");
    QTest::addColumn<bool>("isWide");
    QTest::newRow("wide") << QSize(1200, 900) << true;
    QTest::newRow("narrow") << QSize(560, 400) << false;
}

void PreviewPaneTest::isOnEveryPage()
{
    QFETCH(const QSize, room);
    QFETCH(const bool, isWide);
    PrintTask task;
    task.files = {report};
    task.firstPage = u"job"_s;
    openTask(task, room);
    if (isWide)
        m_window->resize(room);
    auto *pane = find<PreviewPane>();
    Q_EMIT pane->rangesPicked(u"2"_s); // before the page with the ranges was shown
    QCOMPARE(m_window->session()->general().pages, u"2"_s);
    QPushButton *button = nullptr;
    for (auto *found : m_window->findChildren<QPushButton *>())
        button = found->text().remove(u'&') == u"Preview…"_s ? found : button;
    QVERIFY(button);
    for (int row = m_window->book()->list()->count() - 1; row >= 0; --row) {
        m_window->book()->showPage(row);
        QCoreApplication::processEvents();
        const bool isSummary = m_window->book()->currentName() == u"summary";
        if (isWide || row == 0) // the general page is the widest
            QCOMPARE(pane->isVisible(), isWide && !isSummary);
        QVERIFY(button->isVisible() != pane->isVisible());
        QVERIFY(m_window->width() <= room.width());
    }
    button->click();
    QVERIFY(find<PreviewDialog>());
}

QTEST_MAIN(PreviewPaneTest)
#include "preview_pane_test.moc"
