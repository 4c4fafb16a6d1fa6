// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/batch/batch_run.h"
#include "host/session/setting_keys.h"
#include "host/window/messages/message_bar.h"
#include "host/window/pages/page_book.h"
#include "host/window/print_window.h"
#include "tests/support/paths.h"
#include "tests/support/private_cupsd.h"
#include "tests/support/private_network.h"
#include "tests/support/simulated_printer.h"
#include "tests/support/udp_responder.h"

#include <QApplication>
#include <QBuffer>
#include <QComboBox>
#include <QFrame>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QTest>

using namespace host;
using namespace Qt::StringLiterals;

namespace {

const QString document = sourcePath("/demo/report.pdf");
const QStringList balances{u"ColorBalanceCyan"_s, u"ColorBalanceMagenta"_s, u"ColorBalanceYellow"_s,
                           u"ColorBalanceBlack"_s};
// For the three lists of profiles and the defaults; a responding device is queried for each once.
constexpr int rowsOfADevice = 15 + 15 + 63 + 4;

SnmpReplies answerAll(const SnmpReply &reply)
{
    return {reply.withInteger(1)};
}

// Records whether the wait for the printer was shown with a busy cursor.
class BusySign : public QObject
{
public:
    BusySign() { qApp->installEventFilter(this); }

    std::atomic<bool> shown = false; // read by the device's thread

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const auto *label = event->type() == QEvent::Paint ? qobject_cast<QLabel *>(watched) : nullptr;
        const QCursor *cursor = QApplication::overrideCursor();
        if (label && label->text().startsWith(u"Asking the printer"_s) && cursor &&
            cursor->shape() == Qt::BusyCursor && label->height() >= label->fontMetrics().height())
            shown = true;
        return false;
    }
};

// As a user does, step by step with the arrow keys.
void chooseWithKeys(QComboBox *popUp, const QString &text)
{
    const int wanted = popUp->findText(text);
    QVERIFY2(wanted >= 0, qPrintable(text));
    popUp->setFocus();
    while (popUp->currentIndex() != wanted) {
        const int before = popUp->currentIndex();
        QTest::keyClick(popUp, before < wanted ? Qt::Key_Down : Qt::Key_Up);
        QVERIFY(popUp->currentIndex() != before);
    }
}

} // namespace

using Start = std::function<void(PrintTask &)>;

// The color panels in the complete dialog: with the bundle and a PPD of the family, a print server, and
// devices in a private network.
class ColorDialogTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void monochromeResetsTheBalance();
    void profilesTravelWithTheJob_data();
    void profilesTravelWithTheJob();
    void deviceIsAskedByItsPanelAlone();
    void waitingIsShown_data();
    void waitingIsShown();

private:
    PrintWindow &open(const Start &start = {});
    void showPage(const char *name);
    template <typename W>
    W *find(const char *name)
    {
        auto *found = m_window->findChild<W *>(QString::fromLatin1(name));
        if (!found)
            qFatal("the window has no %s", name);
        return found;
    }
    // Makes conflicting choices: the dialog asks, and its suggestion is accepted.
    void resolve(const QString &keyword, const QString &choice, const QString &other,
                 const QString &otherChoice);
    std::optional<CapturedJob> printedJob();

    PrivateCupsd m_server;
    CupsPrintSystem m_system;
    Extensions m_extensions{Extensions::installedBundles(buildPath("/bin"))};
    std::unique_ptr<PrintWindow> m_window;
};

void ColorDialogTest::initTestCase()
{
    if (const QString missing = PrivateCupsd::missing(); !missing.isEmpty())
        QSKIP(qPrintable(missing));
    if (const QString whyNot = enterPrivateNetwork(); !whyNot.isNull())
        QSKIP(qPrintable(whyNot));
    QVERIFY2(m_server.start(), qPrintable(m_server.problem()));
    m_server.provideHome();
    const QString ppd = buildPath("/ppds/kelm880.ppd");
    for (const auto &[queue, address] :
         {std::pair(u"office"_s, u"127.0.0.2"_s), {u"attic"_s, u"127.0.0.3"_s}})
        QVERIFY2(m_server.addQueue(queue, ppd, u"socket://%1:9100"_s.arg(address)),
                 qPrintable(m_server.problem()));
}

PrintWindow &ColorDialogTest::open(const Start &start)
{
    PrintTask task;
    task.files = {document};
    task.printer = u"office"_s;
    if (start)
        start(task);
    m_window.reset();
    m_window = std::make_unique<PrintWindow>(m_system, m_extensions, task);
    PrintError error;
    if (!m_window->open(&error))
        qFatal("%s", qPrintable(error.message));
    m_window->show();
    if (!QTest::qWaitForWindowActive(m_window.get()))
        qFatal("the window does not appear");
    if (!QTest::qWaitFor([this] { return m_window->session() != nullptr; }))
        qFatal("the print server has not answered");
    return *m_window;
}

void ColorDialogTest::showPage(const char *name)
{
    const int row = m_window->book()->pageNamed(QString::fromLatin1(name));
    m_window->book()->showPage(row);
    QVERIFY(row >= 0 && m_window->book()->currentRow() == row);
}

void ColorDialogTest::resolve(const QString &keyword, const QString &choice, const QString &other,
                              const QString &otherChoice)
{
    QVERIFY(m_window->session()->markChoice(keyword, choice));
    QVERIFY(m_window->session()->markChoice(other, otherChoice));
    m_window->print();
    QCOMPARE(m_window->findChild<MessageBar *>()->kind(), MessageBar::Kind::Question);
    m_window->findChild<MessageBar *>()->buttons().first()->click();
    QVERIFY(m_window->session()->conflicts().isEmpty());
}

std::optional<CapturedJob> ColorDialogTest::printedJob()
{
    m_window->print();
    if (QTest::qWaitFor([this] { return m_window->submission().has_value(); }, 15000))
        return m_server.waitForJob(m_window->submission()->job.id);
    qWarning() << m_window->findChild<MessageBar *>()->text();
    return std::nullopt;
}

void ColorDialogTest::monochromeResetsTheBalance()
{
    const UdpResponder device("127.0.0.2", answerAll);
    PrintWindow &window = open();
    showPage("color-settings-2");
    auto *cyan = find<QSlider>("cyanSlider");
    cyan->setFocus();
    for (int step = 0; step < 3; ++step)
        QTest::keyClick(cyan, Qt::Key_Right);
    showPage("color-settings-1");
    QCOMPARE(window.session()->ppd()->markedChoice(balances.first()), u"3"_s);
    QVERIFY(!window.findChild<MessageBar *>()->isShowing());

    chooseWithKeys(find<QComboBox>("colorType"), u"Black and White"_s);
    QTRY_VERIFY(window.findChild<MessageBar *>()->isVisible());
    QCOMPARE(window.findChild<MessageBar *>()->kind(), MessageBar::Kind::Notice);
    QVERIFY2(window.findChild<MessageBar *>()->text().contains(u"Cyan Balance"_s),
             qPrintable(window.findChild<MessageBar *>()->text()));
    for (const QString &balance : balances)
        QCOMPARE(window.session()->ppd()->markedChoice(balance), u"0"_s);
    showPage("color-settings-2");
    const auto *reason = find<QFrame>("colorBalanceNotice");
    QVERIFY(reason->isVisible() && reason->property("text").toString().contains(u"Black and White"_s));
    for (const char *slider : {"cyanSlider", "magentaSlider", "yellowSlider", "blackSlider"})
        QVERIFY2(!find<QSlider>(slider)->isEnabled(), slider);
    QVERIFY(find<QSlider>("sharpnessSlider")->isEnabled());

    showPage("color-settings-1");
    chooseWithKeys(find<QComboBox>("colorType"), u"Full Color"_s);
    showPage("color-settings-2");
    QVERIFY(!reason->isVisible());
    for (const char *slider : {"cyanSlider", "magentaSlider", "yellowSlider", "blackSlider"})
        QVERIFY2(find<QSlider>(slider)->isEnabled() && find<QSlider>(slider)->value() == 0, slider);
    const auto job = printedJob();
    QVERIFY(job);
    for (const QString &balance : balances)
        QCOMPARE(job->options.value(balance), u"0"_s);
    QCOMPARE(job->options.value(u"ColorType"_s), u"Color"_s);
}

void ColorDialogTest::profilesTravelWithTheJob_data()
{
    QTest::addColumn<QString>("queue");
    QTest::addColumn<bool>("sent");
    QTest::newRow("printer on") << u"office"_s << true;
    QTest::newRow("printer off") << u"attic"_s << false;
}

void ColorDialogTest::profilesTravelWithTheJob()
{
    QFETCH(QString, queue);
    QFETCH(bool, sent);
    QFile tables(sourcePath("/simulator/orbm880.device"));
    QVERIFY(tables.open(QIODevice::ReadOnly));
    const SimulatedPrinter printer("127.0.0.2", tables.readAll());
    QVERIFY2(printer.isRunning(), qPrintable(printer.error()));
    struct Setting
    {
        QString set, key, value;
    };
    const Setting settings[]{{u"selectedRgbSourceProfile=2"_s, u"rgb-source"_s, u"2"_s},
                             {u"selectedCmykSourceProfile=4"_s, u"cmyk-source"_s, u"4"_s},
                             {u"selectedCmykDestinationProfile=5"_s, u"cmyk-dest"_s, u"5"_s},
                             {u"renderingIntent=3"_s, u"rendering-intent"_s, u"3"_s},
                             {u"applyToDeviceColorOnly=true"_s, u"device-color-only"_s, u"1"_s}};
    QStringList words{u"kelmar-print"_s, u"--batch"_s,           u"--json"_s, u"-d"_s, queue, document,
                      u"--set"_s,        u"ImageType=Advanced"_s};
    for (const Setting &setting : settings)
        words += {u"--set"_s, u"advancedColorSettingsManager."_s + setting.set};
    QBuffer out, errors, input;
    QVERIFY(out.open(QIODevice::WriteOnly) && errors.open(QIODevice::WriteOnly));
    QString wrong;
    const auto arguments = parseArguments(words, &wrong);
    QVERIFY2(arguments, qPrintable(wrong));
    ResultWriter writer(&out, &errors);
    BatchRun batch(*arguments, m_system, m_extensions);
    batch.setInput(&input);
    QCOMPARE(batch.run(&writer), int(ExitSuccess));
    const QJsonObject result = QJsonDocument::fromJson(out.data()).object();
    const auto job = m_server.waitForJob(result[u"job"_s][u"id"_s].toInt());
    QVERIFY(job);
    QCOMPARE(job->options.value(u"ImageType"_s), u"Advanced"_s);
    for (const Setting &setting : settings)
        QCOMPARE(job->options.value(u"com.kelmar.pde.advancedcolorsettings."_s + setting.key),
                 sent ? setting.value : QString());
    const QJsonArray notices = result[u"notices"_s].toArray();
    const QByteArray text = QJsonDocument(notices).toJson();
    QVERIFY2(sent ? notices.isEmpty()
                  : text.contains("is not sent with the job: The printer cannot be reached"),
             text.constData());
}

void ColorDialogTest::deviceIsAskedByItsPanelAlone()
{
    const UdpResponder device("127.0.0.2", answerAll);
    open();
    for (const char *page : {"print-mode", "color-settings-2", "more", "summary", "general"})
        showPage(page);
    resolve(u"PrintMode"_s, u"Proof"_s, u"BlankPage"_s, u"True"_s);
    QVERIFY(printedJob());
    QCOMPARE(device.requestCount(), 0);

    open();
    showPage("color-settings-1");
    QCOMPARE(device.requestCount(), rowsOfADevice);
    for (const char *page : {"color-settings-2", "color-settings-1", "summary"})
        showPage(page);
    resolve(u"Halftone"_s, u"Detail"_s, u"TonerSave"_s, u"True"_s);
    QVERIFY(printedJob());
    QCOMPARE(device.requestCount(), rowsOfADevice);
}

void ColorDialogTest::waitingIsShown_data()
{
    QTest::addColumn<Start>("start");
    QTest::newRow("page turned") << Start();
    QTest::newRow("opened at the panel")
        << Start([](PrintTask &task) { task.firstPage = u"color-settings-1"_s; });
    // The last one resets the balance.
    QTest::newRow("settings of the command line") << Start([](PrintTask &task) {
        task.prepare = [](DialogSession *session, PrintError *error) {
            return choose(session, {u"ColorBalanceCyan"_s, u"3"_s}, error) &&
                   choose(session, {u"ImageType"_s, u"Advanced"_s}, error) &&
                   choose(session, {u"ColorType"_s, u"Mono"_s}, error);
        };
    });
}

void ColorDialogTest::waitingIsShown()
{
    QFETCH(Start, start);
    BusySign sign;
    std::atomic<int> askedUnseen = 0;
    const UdpResponder device("127.0.0.2", [&](const SnmpReply &reply) {
        askedUnseen += sign.shown ? 0 : 1;
        return answerAll(reply);
    });
    open(start);
    showPage("color-settings-1");
    QCOMPARE(device.requestCount(), rowsOfADevice);
    QCOMPARE(askedUnseen, 0);
    QVERIFY(m_window->isSettled()); // for a picture
    // The settings of the command line are changes to the defaults, but no steps of undo.
    const QString imageType = m_window->session()->ppd()->markedChoice(u"ImageType"_s);
    QCOMPARE(find<QPushButton>("presets")->text().contains(u"(changed)"_s), imageType == u"Advanced"_s);
    QTest::keyClick(m_window.get(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(m_window->session()->ppd()->markedChoice(u"ImageType"_s), imageType);
    QCOMPARE(m_window->session()->ppd()->markedChoice(u"ColorType"_s),
             imageType == u"Advanced"_s ? u"Mono"_s : u"Auto"_s);
    QVERIFY(!QApplication::overrideCursor());
    for (const QLabel *label : m_window->findChildren<QLabel *>())
        QVERIFY(!label->text().startsWith(u"Asking the printer"_s));
}

QTEST_MAIN(ColorDialogTest)
#include "color_dialog_test.moc"
