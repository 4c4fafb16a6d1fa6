// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/printed_pages.h"
#include "host/window/jobs/result_page.h"
#include "host/window/look/color_scheme.h"
#include "host/window/look/contrast.h"
#include "host/window/look/desktop_contrast.h"
#include "host/window/look/dialog_button.h"
#include "host/window/look/mnemonics.h"
#include "host/window/look/status_glyph.h"
#include "host/window/messages/message_bar.h"
#include "host/window/pages/page_book.h"
#include "host/window/pages/page_list.h"
#include "host/window/printers/printer_picker.h"
#include "host/window/waiting/wait_sign.h"
#include "host/window/waiting/waiting_page.h"
#include "platform/text_field.h"
#include "tests/host/window_fixture.h"

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFocusFrame>
#include <QLabel>
#include <QLineEdit>
#include <QProxyStyle>
#include <QRadioButton>
#include <QSignalSpy>
#include <QStyleOptionButton>
#include <QTemporaryDir>

using namespace host;
using namespace Qt::StringLiterals;

namespace {

// Labels of buttons have the color of the highlight, whatever the palette.
class OwnLabels : public QProxyStyle
{
public:
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override
    {
        const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
        QStyleOptionButton own = button ? *button : QStyleOptionButton();
        own.palette.setColor(QPalette::ButtonText, own.palette.color(QPalette::Highlight));
        const bool isLabel = button && element == CE_PushButtonLabel;
        QProxyStyle::drawControl(element, isLabel ? &own : option, painter, widget);
    }
};

// The highest contrast of a pixel to a color, away from the edges.
qreal contrastInside(const QImage &image, const QColor &ground)
{
    qreal most = 1;
    for (int y = 5; y < image.height() - 5; ++y) {
        for (int x = 5; x < image.width() - 5; ++x)
            most = std::max(most, contrast(image.pixelColor(x, y), ground));
    }
    return most;
}

} // namespace

// Using the window without a mouse, and its appearance for users with low vision.
class WindowKeyboardTest : public WindowFixture
{
    Q_OBJECT
private Q_SLOTS:
    void savingAPanelLeavesTheFocus();
    void returnPressesTheButtonWithTheFocus();
    void escapeClosesAnOpenListAlone();
    void questionTakesTheFocusAndGivesItBack();
    void conflictGoesWithItsCause();
    void secondClickDoesNotCloseTheResult();
    void resultNamesEverything_data();
    void resultNamesEverything();
    void actionOfTheResultLeavesTheFocusToClose_data();
    void actionOfTheResultLeavesTheFocusToClose();
    void waitingIsReadOut();
    void passwordFitsTheFormat_data();
    void passwordFitsTheFormat();
    void passwordIsCheckedByTheNextPrinter();
    void errorBelongsToItsField();
    void colorsStandOut_data();
    void colorsStandOut();
    void gtkThemeAsksForContrast_data();
    void gtkThemeAsksForContrast();
    void mnemonics();

private:
    // Replaces the session's panels by panels for the color mode and the balance.
    FakePanel *showPanels(PrintWindow &window);
};

FakePanel *WindowKeyboardTest::showPanels(PrintWindow &window)
{
    auto first = std::make_unique<FakePanel>(u"Colour"_s, QStringList(u"ColorType"_s), window.session());
    auto second = std::make_unique<FakePanel>(u"Balance"_s, QStringList(u"Cyan"_s), window.session());
    FakePanel *colour = first.get();
    new platform::TextField(colour->panelView());
    platform::PrintDialogPanels panels;
    panels.push_back(std::move(first));
    panels.push_back(std::move(second));
    adoptPanels(window.session(), std::move(panels));
    window.showSession();
    window.book()->showPage(0);
    return colour;
}

void WindowKeyboardTest::savingAPanelLeavesTheFocus()
{
    PrintWindow &window = open();
    showPanels(window);
    auto *list = find<PageList>();
    list->setFocus();
    for (int row = 1; row < list->count(); ++row) {
        QTest::keyClick(window.focusWidget(), Qt::Key_Down);
        QCOMPARE(window.book()->currentRow(), row);
        QCOMPARE(window.focusWidget(), list);
    }
    // The focused field, which disappears with its page, passes the focus to the list.
    window.book()->showPage(1);
    auto *field = find<platform::TextField>();
    field->setFocus();
    QTest::keyClicks(field, u"7"_s);
    QTest::keyClick(field, Qt::Key_PageDown, Qt::ControlModifier);
    QCOMPARE(field->stringValue(), u"7"_s);
    QCOMPARE(window.focusWidget(), list);
}

void WindowKeyboardTest::returnPressesTheButtonWithTheFocus()
{
    PrintWindow &window = open();
    QVERIFY(printButton()->isDefault());
    QPushButton *cancel = nullptr;
    for (auto *button : window.findChildren<QPushButton *>())
        cancel = button->text().remove(u'&') == u"Cancel"_s ? button : cancel;
    cancel->setFocus(Qt::TabFocusReason);
    auto *frame = find<QFocusFrame>();
    QVERIFY(frame->isVisible());
    QVERIFY(frame->geometry().contains({cancel->mapTo(frame->parentWidget(), QPoint()), cancel->size()}));
    QVERIFY(cancel->isDefault() && !printButton()->isDefault());
    QTest::keyClick(cancel, Qt::Key_Return);
    QCOMPARE(window.result(), int(QDialog::Rejected));
    QVERIFY(m_system.submitted.isEmpty());
}

// On Wayland the focus stays with the dialog's window while a list is open.
void WindowKeyboardTest::escapeClosesAnOpenListAlone()
{
    PrintWindow &window = open();
    auto *box = window.book()->findChild<QComboBox *>();
    QVERIFY(box && box->count() > 1);
    box->setFocus();
    box->showPopup();
    QTRY_VERIFY(QApplication::activePopupWidget());
    QTest::keyClick(window.windowHandle(), Qt::Key_Escape);
    QVERIFY(!QApplication::activePopupWidget());
    QVERIFY(window.isVisible());
    QTest::keyClick(window.windowHandle(), Qt::Key_Escape);
    QVERIFY(!window.isVisible());
}

void WindowKeyboardTest::questionTakesTheFocusAndGivesItBack()
{
    PrintWindow &window = open();
    window.session()->markChoice(u"ColorType"_s, u"Mono"_s);
    window.session()->markChoice(u"Cyan"_s, u"2"_s);
    auto *box = find<QComboBox>(u"Duplex"_s);
    box->setFocus();
    const QPoint before = box->mapTo(&window, QPoint());
    QTest::keyClick(box, Qt::Key_P, Qt::ControlModifier);
    settle();
    MessageBar *bar = find<MessageBar>();
    QCOMPARE(window.focusWidget(), bar->buttons().first());
    // A screen reader announces the texts, and does not repeat them with the buttons.
    const auto parts = bar->findChildren<QWidget *>();
    const auto texts = std::find_if(parts.begin(), parts.end(), [](QWidget *part) {
        return QAccessible::queryAccessibleInterface(part)->role() == QAccessible::Notification;
    });
    QVERIFY(texts != parts.end());
    QCOMPARE((*texts)->accessibleName(), bar->text());
    QVERIFY(!(*texts)->isAncestorOf(bar->buttons().first()) && bar->accessibleName().isEmpty());
    QVERIFY(bar->buttons().first()->accessibleDescription().isEmpty());
    QCoreApplication::processEvents();
    QCOMPARE(box->mapTo(&window, QPoint()), before); // not moved
    QTest::keyClick(bar->buttons().first(), Qt::Key_Return);
    QVERIFY(!bar->isShowing() && window.session()->conflicts().isEmpty());
    QCOMPARE(window.focusWidget(), box);
}

void WindowKeyboardTest::conflictGoesWithItsCause()
{
    PrintWindow &window = open();
    FakePanel *colour = showPanels(window);
    window.book()->showPage(1);
    window.session()->markChoice(u"Cyan"_s, u"2"_s);
    QVERIFY(!pageSettings(*window.session()).isMonochrome);
    colour->setValueForKey(u"Mono"_s, u"ColorType"_s);
    QVERIFY(
        pageSettings(*window.session()).isMonochrome); // the preview does not wait until the panel is saved
    window.print();
    settle();
    QCOMPARE(find<MessageBar>()->kind(), MessageBar::Kind::Question);
    colour->setValueForKey(u"Auto"_s, u"ColorType"_s); // like its control
    QTRY_VERIFY(!find<MessageBar>()->isShowing());
}

void WindowKeyboardTest::secondClickDoesNotCloseTheResult()
{
    PrintWindow &window = open();
    QSignalSpy finished(&window, &QDialog::finished);
    const QPoint place = printButton()->mapTo(&window, printButton()->rect().center());
    QTest::mouseClick(printButton(), Qt::LeftButton);
    settle(); // on a busy machine, the waiting page is shown first
    QCOMPARE(m_system.submitted.size(), 1);
    QWidget *under = window.childAt(place);
    QVERIFY(qobject_cast<QPushButton *>(under)); // hence the check
    QTest::mouseDClick(under, Qt::LeftButton);
    QCOMPARE(finished.count(), 0);
    QTest::keyClick(&window, Qt::Key_Return); // the keyboard need not wait
    QCOMPARE(finished.count(), 1);
}

void WindowKeyboardTest::resultNamesEverything_data()
{
    QTest::addColumn<JobStatus>("status");
    QTest::addColumn<QString>("text");
    QTest::addColumn<StatusGlyph::Kind>("sign");
    JobStatus status;
    status.state = JobStatus::State::Held;
    QTest::newRow("held") << status << u"enter its password at the printer “Attic”"_s
                          << StatusGlyph::Kind::Notice;
    status.state = JobStatus::State::Pending;
    status.printerStopped = true;
    status.message = u"The printer is out of paper."_s;
    QTest::newRow("stopped") << status << u"stopped\nThe printer is out of paper."_s
                             << StatusGlyph::Kind::Notice;
    status = {JobStatus::State::Processing, false, {}, {}, false, 2};
    QTest::newRow("printing") << status << u"printing\nPages printed so far: 2"_s
                              << StatusGlyph::Kind::Success;
    status = {JobStatus::State::Completed, true, {}, {}, false, 3};
    QTest::newRow("done") << status << u"done\nPages printed: 3"_s << StatusGlyph::Kind::Success;
}

void WindowKeyboardTest::resultNamesEverything()
{
    QFETCH(const JobStatus, status);
    QFETCH(const QString, text);
    QFETCH(const StatusGlyph::Kind, sign);
    ResultPage page;
    page.showSubmission(u"Attic"_s, u"“one.pdf”, “two.pdf”"_s,
                        {Submission::Outcome::Accepted, {7, status, {}}, {}});
    QVERIFY2(page.text().contains(text) && page.text().contains(u"“one.pdf”, “two.pdf”"_s),
             qPrintable(page.text()));
    QCOMPARE(page.findChild<StatusGlyph *>()->kind(), sign);
}

void WindowKeyboardTest::actionOfTheResultLeavesTheFocusToClose_data()
{
    QTest::addColumn<bool>("byMouse");
    QTest::newRow("mouse") << true;
    QTest::newRow("keyboard") << false;
}

// Also if the button is hidden meanwhile, because the held job was released.
void WindowKeyboardTest::actionOfTheResultLeavesTheFocusToClose()
{
    QFETCH(bool, byMouse);
    m_system.status.state = JobStatus::State::Held;
    m_system.status.isHeldByUser = true;
    PrintWindow &window = open();
    printButton()->click();
    settle();
    QPushButton *release = nullptr;
    for (auto *button : find<ResultPage>()->findChildren<QPushButton *>())
        release = button->text().remove(u'&') == u"Release"_s ? button : release;
    QVERIFY(release && release->isVisible());
    if (byMouse) {
        QTest::mouseClick(release, Qt::LeftButton);
    } else {
        release->setFocus(Qt::TabFocusReason);
        QTest::keyClick(release, Qt::Key_Space);
    }
    settle();
    QCOMPARE(m_system.changes, QList({JobAction::Release}));
    m_system.status.state = JobStatus::State::Processing;
    QTRY_VERIFY(release->isHidden());
    auto *close = qobject_cast<QPushButton *>(window.focusWidget());
    QVERIFY(close && close->isDefault());
    QCOMPARE(close->text().remove(u'&'), u"Close"_s);
    QTest::keyClick(close, Qt::Key_Return);
    QCOMPARE(window.result(), int(QDialog::Accepted));
}

void WindowKeyboardTest::waitingIsReadOut()
{
    WaitingPage page;
    page.setTask(u"Asking the print server…"_s, u"Do Not Wait"_s);
    WaitSign sign;
    sign.begin(u"Asking the printer…"_s);
    sign.offerStop();
    sign.addNote(u"It will be printed."_s);
    for (const auto &[part, texts] :
         {std::pair<QWidget *, QStringList>(&page, {u"Asking the print server…"_s}),
          {&sign, {u"Asking the printer…"_s, u"It will be printed."_s}}}) {
        QStringList announced;
        for (QWidget *widget : part->findChildren<QWidget *>()) {
            const QAccessibleInterface *reader = QAccessible::queryAccessibleInterface(widget);
            if (reader->role() == QAccessible::Notification)
                announced.append(reader->text(QAccessible::Name));
        }
        QCOMPARE(announced, texts);
        // It would be repeated when its button gets the focus.
        QVERIFY(QAccessible::queryAccessibleInterface(part)->text(QAccessible::Name).isEmpty());
    }
    sign.end();
}

void WindowKeyboardTest::passwordFitsTheFormat_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>(
        "allowed"); // instead of the last character, which is refused; empty if it is not
    const auto row = [](const char *format, const QString &typed, const QString &allowed = QString()) {
        QTest::addRow("%s: %s", format, qPrintable(typed)) << QByteArray(format) << typed << allowed;
    };
    const QString digit = u"a digit from 0 to 9"_s, letter = u"a letter from A to Z"_s;
    row("1111", u"1234"_s);
    row("1111", u"12a"_s, digit);
    row("1111", u"1٢"_s, digit);
    row("AAAA", u"aBé"_s, letter);
    row("CCCC", u"a1B-"_s, u"a letter from A to Z or a digit from 0 to 9"_s);
    row("....", u"a ~é"_s, u"a printable ASCII character"_s);
    row("NNNN", u"1٢a"_s, u"a digit"_s);
    row("UUUU", u"aé1"_s, u"a letter"_s);
    row("****", u"é€1 "_s);
    row("1A", u"1b"_s);
    row("1A", u"12"_s, letter);
    row("xx", u"é-"_s);
}

// The field refuses the character, says why, and keeps the others.
void WindowKeyboardTest::passwordFitsTheFormat()
{
    QFETCH(QByteArray, format);
    QFETCH(QString, typed);
    QFETCH(QString, allowed);
    m_system.printers.first().passwordLength = 8; // in bytes
    m_system.ppds[u"office"_s] += "*cupsJobPassword: \"" + format + "\"\n";
    PrintWindow &window = open();
    window.book()->showPage(window.book()->pageNamed(u"print-mode"_s));
    auto *field = window.findChild<QLineEdit *>(u"job-password"_s);
    QVERIFY(field && field->isVisible());
    for (const QChar &c : std::as_const(typed)) {
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
        QCoreApplication::sendEvent(field, &press);
    }
    QCOMPARE(field->text(), allowed.isEmpty() ? typed : typed.chopped(1));
    QStringList said;
    for (const auto *label : window.book()->findChildren<QLabel *>()) {
        if (label->isVisible() && label->text().startsWith(u"Character"_s))
            said.append(label->text());
    }
    const QString expected = u"Character %1 of the password has to be %2."_s.arg(typed.size()).arg(allowed);
    QCOMPARE(said, allowed.isEmpty() ? QStringList() : QStringList(expected));
}

void WindowKeyboardTest::passwordIsCheckedByTheNextPrinter()
{
    m_system.printers[0].passwordLength = m_system.printers[1].passwordLength = 8;
    m_system.ppds[u"attic"_s] += "*cupsJobPassword: \"1111\"\n";
    PrintWindow &window = open();
    window.book()->showPage(window.book()->pageNamed(u"print-mode"_s));
    QTest::keyClicks(find<QLineEdit>(u"job-password"_s), u"12a"_s);
    Q_EMIT find<PrinterPicker>()->picked(u"attic"_s);
    QTRY_COMPARE(window.session()->destination().queue, u"attic"_s);
    QVERIFY(find<MessageBar>()->text().contains(u"removed: the job will not be protected. Character 3"_s));
    printButton()->click();
    settle();
    QCOMPARE(m_system.submitted.size(), 1);
    for (const JobOption &option : m_system.submitted.first().options)
        QVERIFY(option.name != u"job-password"_s);
}

void WindowKeyboardTest::errorBelongsToItsField()
{
    PrintWindow &window = open();
    for (auto *radio : window.findChildren<QRadioButton *>())
        radio->click();
    auto *pages = window.findChild<QLineEdit *>(u"page-ranges"_s);
    const auto description = [pages] {
        return QAccessible::queryAccessibleInterface(pages)->text(QAccessible::Description);
    };
    const QString usual = description();
    QTest::keyClicks(pages, u"3-1"_s);
    QVERIFY(description() != usual);
    const QLabel *announced = nullptr;
    for (const auto *label : window.findChildren<QLabel *>())
        announced = label->isVisible() && label->text() == description() ? label : announced;
    QVERIFY(announced);
    QCOMPARE(QAccessible::queryAccessibleInterface(const_cast<QLabel *>(announced))->role(),
             QAccessible::Notification);
    QCOMPARE(announced->accessibleName(), description());
    QTest::keyClick(pages, Qt::Key_Backspace);
    QTest::keyClicks(pages, u"4"_s);
    QCOMPARE(description(), usual);
}

void WindowKeyboardTest::colorsStandOut_data()
{
    QTest::addColumn<QString>("scheme");
    QTest::newRow("light") << u"light"_s;
    QTest::newRow("dark") << u"dark"_s;
    QTest::newRow("high contrast") << highContrast;
    QTest::newRow("high contrast, dark") << highContrastDark;
}

void WindowKeyboardTest::colorsStandOut()
{
    QFETCH(const QString, scheme);
    applyColorScheme(scheme);
    const QPalette palette = QApplication::palette();
    const QColor window = palette.color(QPalette::Window);
    const QColor highlight = palette.color(QPalette::Highlight);
    const auto check = [](const char *what, const QColor &a, const QColor &b, qreal least) {
        QVERIFY2(contrast(a, b) >= least,
                 qPrintable(u"%1 %2"_s.arg(QLatin1String(what)).arg(contrast(a, b))));
    };
    check("error", errorInk(palette), window, textContrast);
    check("selected row", highlightInk(palette), highlight, textContrast);
    check("default button", highlight, window, markContrast);
    OwnLabels style;
    DialogButton button(u"&Print"_s, nullptr);
    button.setStyle(&style);
    button.setDefault(true);
    QVERIFY2(contrastInside(button.grab().toImage(), highlight) >= textContrast,
             "label of the default button");
    check("ring on the window", focusInk(palette), window, markContrast);
    check("ring on a field", focusInk(palette), palette.color(QPalette::Base), markContrast);
    const bool isHigh = scheme.startsWith(highContrast);
    check("text", palette.color(QPalette::WindowText), window, isHigh ? 21 : textContrast);
    check("what is switched off", palette.color(QPalette::Disabled, QPalette::WindowText), window,
          isHigh ? 7 : markContrast);
    QCOMPARE(mutedInk(palette).alpha() == 255, isHigh);
    QCOMPARE(qRound(contrast(Qt::black, Qt::white)), 21);
}

void WindowKeyboardTest::gtkThemeAsksForContrast_data()
{
    QTest::addColumn<QByteArray>("variable"); // GTK_THEME; null if not set
    QTest::addColumn<QByteArray>("settings"); // of GTK 3
    QTest::addColumn<QString>("scheme");
    const QByteArray file = "[Settings]\ngtk-font-name=Sans 11\ngtk-theme-name = ";
    QTest::newRow("nothing") << QByteArray() << QByteArray() << QString();
    QTest::newRow("variable") << QByteArray("HighContrast") << QByteArray() << highContrast;
    QTest::newRow("dark variant") << QByteArray("HighContrast:dark") << QByteArray() << highContrastDark;
    QTest::newRow("variable first") << QByteArray("Adwaita") << file + "HighContrast\n" << QString();
    QTest::newRow("file") << QByteArray() << file + "HighContrastInverse\n" << highContrastDark;
    QTest::newRow("other theme") << QByteArray() << file + "Adwaita\n" << QString();
    QTest::newRow("no text") << QByteArray() << QByteArray("\0=\xff\n=\n=x", 9) << QString();
}

void WindowKeyboardTest::gtkThemeAsksForContrast()
{
    QFETCH(const QByteArray, variable);
    QFETCH(const QByteArray, settings);
    QFETCH(const QString, scheme);
    QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkpath(u"gtk-3.0"_s));
    QFile file(folder.filePath(u"gtk-3.0/settings.ini"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(settings);
    file.close();
    qputenv("XDG_CONFIG_HOME", folder.path().toLocal8Bit());
    variable.isNull() ? qunsetenv("GTK_THEME") : qputenv("GTK_THEME", variable);
    QCOMPARE(contrastSchemeOfTheme(), scheme);
    qunsetenv("GTK_THEME");
    qunsetenv("XDG_CONFIG_HOME");
}

void WindowKeyboardTest::mnemonics()
{
    Mnemonics mnemonics;
    // A text whose keys are all taken gets that of another one, which gets a different one.
    QCOMPARE(mnemonics.assign({u"&Printer:"_s, u"&Paper"_s, u"Pa"_s, Mnemonics::escaped(u"b & c"_s),
                               u"Pa&rt of it"_s, u"用紙:"_s, u"部数(&P):"_s, u"Toad"_s, u"To"_s}),
             QStringList({u"&Printer:"_s, u"Pap&er"_s, u"P&a"_s, u"&b && c"_s, u"Pa&rt of it"_s,
                          u"用紙(&C):"_s, u"部数(&D):"_s, u"&Toad"_s, u"T&o"_s}));
    QCOMPARE(mnemonics.assign({u"apt"_s}), QStringList(u"apt"_s));
    // A key that a text asks for is given up only if another text would get none.
    QCOMPARE(Mnemonics().assign({u"&Oh"_s, u"N"_s, u"No"_s}), QStringList({u"O&h"_s, u"&N"_s, u"N&o"_s}));
}

QTEST_MAIN(WindowKeyboardTest)
#include "window_keyboard_test.moc"
