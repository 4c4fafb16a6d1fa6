// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/look/access_keys.h"
#include "host/window/look/color_scheme.h"
#include "host/window/messages/message_bar.h"
#include "host/window/pages/page_book.h"
#include "host/window/pages/page_controls.h"
#include "host/window/pages/page_frame.h"
#include "host/window/pages/page_list.h"
#include "host/window/print_window.h"
#include "host/window/printers/printer_box.h"
#include "host/window/printers/printer_picker.h"
#include "tests/host/family_printer.h"
#include "tests/support/paths.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QKeySequence>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

using namespace host;
using namespace Qt::StringLiterals;

namespace {

const QString document = sourcePath("/demo/report.pdf");

QString nameOf(const QWidget *widget)
{
    for (const QString &name : {widget->accessibleName(), widget->property("text").toString()}) {
        if (!name.isEmpty())
            return QString(name).remove(u'&');
    }
    return QString::fromLatin1(widget->metaObject()->className());
}

} // namespace

// Every page of the dialog with a PPD of the family and the message bar shown, in the language of the
// environment. If KELMAR_PICTURES is a folder, saves a picture of each page there.
class DialogPagesTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void everyPage_data();
    void everyPage();

private:
    // The visible texts of fields and buttons, with their access keys.
    QHash<QWidget *, QString> keyed() const;
    void checkKeys();
    void checkSummaryNames(int page);
    void checkWidth();
    void checkInside(const QSize &room);
    // Presses Tab until it returns to the start, and returns the widgets that had the focus.
    QList<QWidget *> walk();
    void checkTabOrder();
    int partOf(const QWidget *widget) const;
    void takePicture(const QString &page) const;

    QString m_language;
    FamilyPrintSystem m_system;
    std::unique_ptr<PrintWindow> m_window;
};

void DialogPagesTest::initTestCase()
{
    m_language = qEnvironmentVariable("LANGUAGE").left(2);
    for (const QString &file : {buildPath("/host/kelmar-print_") + m_language,
                                u"/usr/share/qt6/translations/qtbase_"_s + m_language}) {
        QVERIFY2(speakCatalog(file, this) || m_language == u"en", qPrintable(file));
    }
    Destination attic = m_system.printers.first();
    attic.queue = u"attic"_s;
    attic.isDefault = false;
    m_system.printers.append(attic);
    m_system.ppds.insert(attic.queue, FamilyPrintSystem::familyPpd(u"kelo2600.ppd"_s));
}

void DialogPagesTest::everyPage_data()
{
    QTest::addColumn<QSize>("room");
    QTest::addColumn<int>("points");
    QTest::addColumn<QString>("scheme");
    QTest::addColumn<QString>("style");
    QTest::addColumn<bool>("isWhole"); // the General page needs no scroll bar
    QTest::newRow("800x600") << QSize(800, 600) << 10 << u"light"_s << u"Fusion"_s << false;
    QTest::newRow("1024x600 at 2") << QSize(512, 300) << 10 << u"dark"_s << u"Fusion"_s << false;
    QTest::newRow("1366x768 at 1.5") << QSize(910, 512) << 10 << u"light"_s << u"Fusion"_s << false;
    QTest::newRow("1280x1024 at 2") << QSize(640, 512) << 10 << u"dark"_s << u"Fusion"_s << false;
    QTest::newRow("1366x768") << QSize(1366, 768) << 10 << u"dark"_s << u"Fusion"_s << true;
    QTest::newRow("1366x768, tall controls") << QSize(1366, 768) << 10 << u"light"_s << u"Adwaita"_s << false;
    QTest::newRow("28 points") << QSize(1280, 960) << 28 << u"light"_s << u"Fusion"_s << false;
}

void DialogPagesTest::everyPage()
{
    QFETCH(const QSize, room);
    QFETCH(const int, points);
    QFETCH(const QString, scheme);
    QFETCH(const QString, style);
    QFETCH(const bool, isWhole);
    applyColorScheme(scheme);
    QVERIFY(QApplication::setStyle(style));
    QFont font = QApplication::font();
    font.setPointSize(points);
    QApplication::setFont(font);
    Extensions extensions(Extensions::installedBundles(buildPath("/bin")));
    PrintTask task;
    task.files = {document};
    m_window = std::make_unique<PrintWindow>(m_system, extensions, task);
    m_window->findChild<WindowLayout *>()->setRoom(room);
    PrintError error;
    QVERIFY(m_window->open(&error));
    // It may be painted before the size of its frame is known.
    QVERIFY(m_window->height() <= room.height() - 2 * m_window->fontMetrics().height());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QTRY_VERIFY(m_window->session());
    QTRY_VERIFY(m_window->findChild<QWidget *>(u"page-set"_s)); // created after the first paint
    for (const QString &printer : {u"attic"_s, u"office"_s}) {  // in a window that is already wide
        Q_EMIT m_window->findChild<PrinterPicker *>()->picked(printer);
        QTRY_COMPARE(m_window->session()->destination().queue, printer);
        QTRY_VERIFY(m_window->findChild<QWidget *>(u"page-set"_s));
        checkWidth();
    }
    const auto *area = m_window->book()->builtPage(0)->findChild<QScrollArea *>();
    QTRY_VERIFY(!isWhole || area->verticalScrollBar()->maximum() == 0);
    m_window->session()->markChoice(u"MediaType"_s, u"Thick1"_s);
    m_window->session()->markChoice(u"Duplex"_s, u"DuplexTumble"_s);
    QCoreApplication::processEvents();
    const QHash<QWidget *, QString> before = keyed();
    m_window->print();
    QCOMPARE(m_window->findChild<MessageBar *>()->kind(), MessageBar::Kind::Question);
    const QHash<QWidget *, QString> after = keyed();
    for (auto [widget, text] : before.asKeyValueRange()) { // a message changes no key that the user knows
        QVERIFY2(QKeySequence::mnemonic(after.value(widget)) == QKeySequence::mnemonic(text),
                 qPrintable(text + u" became "_s + after.value(widget)));
    }
    const int pages = m_window->book()->list()->count();
    QVERIFY(pages >= 5);
    for (int page = 0; page < pages; ++page) {
        if (page > 0) {
            m_window->book()->list()->setFocus();
            QTest::keyClick(m_window.get(), Qt::Key_PageDown, Qt::ControlModifier);
        }
        QCOMPARE(m_window->book()->currentRow(), page);
        QVERIFY(m_window->findChild<MessageBar *>()->isShowing());
        QCoreApplication::processEvents();
        checkKeys();
        checkInside(room);
        takePicture(QString::number(page));
        checkTabOrder();
        checkSummaryNames(page);
    }
    m_window.reset();
}

// A setting has the same name on its page and in the summary.
void DialogPagesTest::checkSummaryNames(int page)
{
    const QString title = m_window->book()->titleOf(page);
    QStringList names;
    for (const PageControl &found : controlsOf(m_window->book()->builtPage(page)))
        names.append(found.name);
    for (const SummarySection &section : m_window->session()->summary()) {
        if (section.title != title || m_window->book()->currentName() == u"general")
            continue;
        for (const auto &[name, value] : section.entries)
            QVERIFY2(names.contains(name),
                     qPrintable(u"%1 is not on %2: %3"_s.arg(name, title, names.join(u", "_s))));
    }
}

QHash<QWidget *, QString> DialogPagesTest::keyed() const
{
    QHash<QWidget *, QString> found;
    for (QWidget *widget : m_window->findChildren<QWidget *>()) {
        const auto *label = qobject_cast<QLabel *>(widget);
        const bool isNamed =
            label ? label->buddy() != nullptr : qobject_cast<QAbstractButton *>(widget) != nullptr;
        const QString text = widget->property("text").toString();
        if (isNamed && !text.isEmpty() && widget->isVisible())
            found.insert(widget, text);
    }
    return found;
}

void DialogPagesTest::checkKeys()
{
    QHash<QString, QString> owners;
    QStringList without, spared; // answers, and buttons with another key, only get keys that are free
    const QHash<QWidget *, QString> texts = keyed();
    for (auto [widget, text] : texts.asKeyValueRange()) {
        const auto *label = qobject_cast<QLabel *>(widget);
        const QString key = QKeySequence::mnemonic(text).toString();
        const bool hasLetters = std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
        // there may not be enough letters for disabled ones
        const QWidget *control = label ? label->buddy() : widget;
        if (key.isEmpty() && hasLetters && control->isEnabled())
            (m_window->findChild<MessageBar *>()->isAncestorOf(widget) ||
                     widget->property(AccessKeys::otherKeyProperty).toBool()
                 ? spared
                 : without)
                .append(text);
        QVERIFY2(key.isEmpty() || !owners.contains(key),
                 qPrintable(key + u": "_s + text + u" and "_s + owners.value(key)));
        owners.insert(key, text);
    }
    QVERIFY(owners.size() > 4);
    for (const QString &text : without + spared) { // only if other texts have all its letters as keys
        for (const QChar letter : text.toUpper()) {
            const bool isUsed =
                letter > u'z' || !letter.isLetterOrNumber() || owners.contains(u"Alt+"_s + letter);
            QVERIFY2(isUsed, qPrintable(text + u" has none"_s));
        }
    }
    // The General page has up to 30 texts for the 26 letters.
    QVERIFY2(without.size() <= 1, qPrintable(without.join(u", "_s)));
}

// A page has the size it needs if the window has it.
void DialogPagesTest::checkWidth()
{
    const PageBook *book = m_window->book();
    const auto *page = qobject_cast<const PageFrame *>(book->builtPage(book->currentRow()));
    QVERIFY2(m_window->width() < book->wantedSize().width() || page->width() >= page->wantedWidth(),
             qPrintable(u"the page is %1 wide and wants %2"_s.arg(page->width()).arg(page->wantedWidth())));
}

void DialogPagesTest::checkInside(const QSize &room)
{
    QVERIFY2(m_window->width() <= room.width() && m_window->height() <= room.height(),
             qPrintable(u"%1x%2"_s.arg(m_window->width()).arg(m_window->height())));
    checkWidth();
    const auto *picker = m_window->findChild<PrinterPicker *>();
    const bool isPickerNarrow = picker->width() < picker->sizeHint().width();
    int seen = 0;
    for (auto *button : m_window->findChildren<QPushButton *>()) {
        const QRect place(button->mapTo(m_window.get(), QPoint()), button->size());
        const bool isPickers = button->parentWidget() == picker;
        if (!isPickers && button->parentWidget() != m_window.get() &&
            button->parentWidget() != m_window->findChild<MessageBar *>())
            continue;
        ++seen;
        const int text = button->fontMetrics().size(Qt::TextShowMnemonic, button->text()).width();
        const int wanted = isPickers && isPickerNarrow ? button->minimumSizeHint().width()
                                                       : qMax(button->sizeHint().width(), text);
        QVERIFY2(m_window->rect().contains(place) && button->width() >= wanted &&
                     button->height() >= button->minimumSizeHint().height(),
                 qPrintable(u"%1: %2 instead of %3"_s.arg(nameOf(button)).arg(button->width()).arg(wanted)));
    }
    QCOMPARE(seen, 6); // the settings, Cancel, Print, and the bar's
    // The page also keeps its share of a low window.
    QVERIFY2(m_window->book()->height() >= room.height() / 4,
             qPrintable(QString::number(m_window->book()->height())));
}

int DialogPagesTest::partOf(const QWidget *widget) const
{
    const auto *picker = m_window->findChild<PrinterPicker *>();
    const QList<const QWidget *> parts{picker, m_window->book()->list(), m_window->book()->pages(),
                                       m_window->findChild<MessageBar *>()};
    for (int i = 0; i < parts.size(); ++i) {
        if (parts[i] == widget || parts[i]->isAncestorOf(widget))
            return i;
    }
    const auto *pushed = qobject_cast<const QPushButton *>(widget);
    return pushed && pushed->isDefault() ? 5 : 4;
}

QList<QWidget *> DialogPagesTest::walk()
{
    QWidget *first = m_window->findChild<PrinterBox *>();
    first->setFocus();
    QList<QWidget *> stops;
    do {
        const QWidget *now = m_window->focusWidget();
        const QRect place(now->mapTo(m_window.get(), QPoint()), now->size());
        if (!m_window->rect().intersects(place) || now->visibleRegion().isEmpty())
            QTest::qFail(qPrintable(nameOf(now) + u" has the focus outside of the visible area"_s), __FILE__,
                         __LINE__);
        stops.append(m_window->focusWidget());
        QTest::keyClick(m_window->focusWidget(), Qt::Key_Tab);
    } while (m_window->focusWidget() != first && stops.size() < 100);
    return stops;
}

void DialogPagesTest::checkTabOrder()
{
    const QList<QWidget *> stops = walk();
    QStringList names;
    int part = 0;
    int bottom = 0;
    // The tab order of the host's pages is from top to bottom.
    const QWidget *page = m_window->book()->builtPage(m_window->book()->currentRow());
    const auto *area = page->findChild<QScrollArea *>();
    const QString name = m_window->book()->currentName();
    const QWidget *hosts = area && (name == u"general" || name == u"more") ? area->widget() : nullptr;
    for (const QWidget *stop : stops) {
        names.append(nameOf(stop));
        QVERIFY2(partOf(stop) >= part, qPrintable(names.join(u" > "_s)));
        part = partOf(stop);
        if (!hosts || !hosts->isAncestorOf(stop))
            continue;
        const int top = stop->mapTo(hosts, QPoint()).y();
        QVERIFY2(top + stop->height() >= bottom, qPrintable(names.join(u" > "_s)));
        bottom = top + stop->height() / 2;
    }
    QCOMPARE(part, 5);
    if (qEnvironmentVariableIsSet("KELMAR_PICTURES"))
        qInfo().noquote() << m_window->book()->titleOf(m_window->book()->currentRow()) + u": "_s +
                                 names.join(u" > "_s);
}

void DialogPagesTest::takePicture(const QString &page) const
{
    const QString folder = qEnvironmentVariable("KELMAR_PICTURES");
    if (folder.isEmpty())
        return;
    const QString name =
        u"%1_%2_%3.png"_s.arg(m_language, QString::fromLatin1(QTest::currentDataTag()).remove(u' '), page);
    m_window->grab().save(QDir(folder).filePath(name));
}

QTEST_MAIN(DialogPagesTest)
#include "dialog_pages_test.moc"
