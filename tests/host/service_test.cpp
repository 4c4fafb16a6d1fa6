// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/service/token_store.h"
#include "tests/host/service_fixture.h"
#include "tests/support/paths.h"

#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusUnixFileDescriptor>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSignalSpy>
#include <QTemporaryFile>

#include <csignal>
#include <fcntl.h>

using namespace Qt::StringLiterals;

// The service on a private bus, called like the portal and the queue; a script replaces the dialog.
class ServiceTest : public ServiceFixture
{
    Q_OBJECT
private Q_SLOTS:
    void init() { startBus(); }
    void cleanup() { stopAll(); }
    void answersSettingsPageSetupAndToken();
    void abilitiesReachTheDialog();
    void nonsenseInEveryField_data();
    void nonsenseInEveryField();
    void tokenRules();
    void oldTokensGo();
    void dialogThatFails_data();
    void dialogThatFails();
    void closeDuringTheDialog();
    void abandonedDialogsClose_data();
    void abandonedDialogsClose();
    void userHearsOfAnAbandonedDialog();
    void placesAreLimited();
    void documentStaysWhereItIs();
    void documentOutlivesItsRequest();
    void sameHandleTwice();
    void documentFromTheQueue();
    void queueDoesNotWaitForADialog();
    void notifiesTheDesktop();
    void tellsHighContrast();
    void leavesWhenIdle();
    void goesWithTheBus();
    void aThousandRequestsLeaveNothing();
};

void ServiceTest::answersSettingsPageSetupAndToken()
{
    startService();
    const Answer answer = call(prepareCall(u"T"_s, {{u"n-copies"_s, u"3"_s}}));
    QCOMPARE(answer.response, 0);
    QVERIFY(answer.token() != 0);
    QCOMPARE(answer.map(u"settings"_s), (QVariantMap{{u"printer"_s, u"office"_s}}));
    QCOMPARE(answer.map(u"page-setup"_s), (QVariantMap{{u"PPDName"_s, u"A4"_s}}));
    const QJsonObject request = lastRequest();
    QCOMPARE(request.value("settings"_L1).toObject(), (QJsonObject{{u"n-copies"_s, u"3"_s}}));
    QCOMPARE(request.value("pageSetup"_L1).toObject().value("Width"_L1).toDouble(), 210.0);
    QCOMPARE(call(prepareCall(u"cancel"_s)).response, 1);
}

// Options of applications in later versions of the portal.
void ServiceTest::abilitiesReachTheDialog()
{
    startService();
    QCOMPARE(call(prepareCall(u"T"_s, {}, {}, {},
                              {{u"accept_label"_s, u"_Continue"_s},
                               {u"supported_output_file_formats"_s, QStringList{u"ps"_s, u"pdf"_s}},
                               {u"has_current_page"_s, true},
                               {u"has_selected_pages"_s, true}}))
                 .response,
             0);
    QCOMPARE(lastRequest().value("acceptLabel"_L1).toString(), u"_Continue"_s);
    QCOMPARE(lastRequest().value("abilities"_L1).toObject(),
             (QJsonObject{{u"formats"_s, QJsonArray{u"ps"_s, u"pdf"_s}},
                          {u"currentPage"_s, true},
                          {u"selection"_s, true}}));
}

void ServiceTest::nonsenseInEveryField_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QVariantMap>("settings");
    QTest::addColumn<int>("kept"); // settings that reach the dialog
    const QString odd = u"\u0001\n\"\\ <b>%1%s\u202e"_s;
    QVariantMap many;
    for (int i = 0; i < 20000; ++i)
        many.insert(QString::number(i), u"x"_s);
    QTest::newRow("odd texts") << odd << QVariantMap{{odd, odd}} << 1;
    QTest::newRow("long texts") << QString(200000, u'x')
                                << QVariantMap{{QString(1000, u'k'), u"x"_s}, {u"v"_s, QString(100000, u'x')}}
                                << 0;
    QTest::newRow("other types") << u"T"_s
                                 << QVariantMap{{u"a"_s, QStringList(u"x"_s)},
                                                {u"b"_s, QVariantMap{{u"c"_s, 1}}},
                                                {u"c"_s, QByteArray("\0\1", 2)},
                                                {u"d"_s, qQNaN()},
                                                {u""_s, u"x"_s},
                                                {u"e"_s, true}}
                                 << 1;
    QTest::newRow("many") << u"T"_s << many << 4096;
}

void ServiceTest::nonsenseInEveryField()
{
    QFETCH(QString, title);
    QFETCH(QVariantMap, settings);
    QFETCH(int, kept);
    startService();
    const Answer answer = call(prepareCall(title, settings, QString(100000, u'a')));
    QCOMPARE(answer.response, 0);
    QVERIFY(answer.results.contains(u"settings"_s) && answer.results.contains(u"page-setup"_s));
    QCOMPARE(lastRequest().value("settings"_L1).toObject().size(), kept);
    QVERIFY(lastRequest().value("title"_L1).toString().size() <= 1000);
}

void ServiceTest::tokenRules()
{
    startService();
    const Answer chosen = call(prepareCall(u"T"_s, {}, u"org.example.App"_s));
    QVERIFY(!QString::fromUtf8(QJsonDocument::fromVariant(chosen.map(u"settings"_s)).toJson())
                 .contains(u"12345"_s));
    const auto kindOf = [this](uint token, const QString &appId) {
        if (call(printCall(token, appId)).response != 0)
            return u"refused"_s;
        return lastRequest().value("kind"_L1).toString();
    };
    QCOMPARE(kindOf(chosen.token(), u"org.example.Other"_s), u"print"_s); // the dialog opens
    QVERIFY(!lastRequest().contains("job"_L1));
    QCOMPARE(kindOf(chosen.token(), u"org.example.App"_s), u"submit"_s);
    QVERIFY(lastRequest().value("job"_L1).toObject().contains("options"_L1));
    QCOMPARE(kindOf(chosen.token(), u"org.example.App"_s), u"print"_s); // valid once
    QCOMPARE(kindOf(0, u"org.example.App"_s), u"print"_s);
    QCOMPARE(kindOf(4711, {}), u"print"_s);
    QCOMPARE(log(u".document"_s), QByteArray("the document").repeated(5));
}

void ServiceTest::oldTokensGo()
{
    host::TokenStore tokens(std::chrono::milliseconds(30));
    QSignalSpy emptied(&tokens, &host::TokenStore::emptied);
    const uint first = tokens.add(u"a"_s, {});
    QVERIFY(tokens.add(u"a"_s, {}) != first);
    QVERIFY(emptied.wait(patience));
    QVERIFY(tokens.isEmpty());
    QVERIFY(!tokens.take(first, u"a"_s));
}

void ServiceTest::dialogThatFails_data()
{
    QTest::addColumn<QString>("title");
    QTest::newRow("crash") << u"crash"_s;
    QTest::newRow("garbage") << u"garbage"_s;
    QTest::newRow("endless") << u"endless"_s;
}

void ServiceTest::dialogThatFails()
{
    QFETCH(QString, title);
    startService();
    const auto other = m_bus.asyncCall(prepareCall(u"wait"_s), patience);
    QTRY_VERIFY_WITH_TIMEOUT(log().contains("wait"), patience);
    QCOMPARE(call(prepareCall(title)).response, 2);
    QCOMPARE(call(printCall(0, {}, title)).response, 2);
    QVERIFY(!other.isFinished()); // other requests are not affected
    QCOMPARE(call(prepareCall(u"T"_s)).response, 0);
}

void ServiceTest::closeDuringTheDialog()
{
    startService();
    QDBusPendingCallWatcher pending(m_bus.asyncCall(prepareCall(u"wait"_s, {}, {}, u"/request/mine"_s)));
    QSignalSpy finished(&pending, &QDBusPendingCallWatcher::finished);
    QTRY_VERIFY_WITH_TIMEOUT(log().contains("wait"), patience);
    const auto close = QDBusMessage::createMethodCall(portalName, u"/request/mine"_s,
                                                      u"org.freedesktop.impl.portal.Request"_s, u"Close"_s);
    QCOMPARE(m_bus.call(close).type(), QDBusMessage::ReplyMessage);
    QVERIFY(!finished.isEmpty() || finished.wait(patience));
    QCOMPARE(answerOf(pending.reply()).response, 2);
    QTRY_VERIFY_WITH_TIMEOUT(log().contains("gone"), patience);
    QCOMPARE(m_bus.call(close).type(), QDBusMessage::ErrorMessage);
}

void ServiceTest::abandonedDialogsClose_data()
{
    QTest::addColumn<bool>("isPortal"); // leaves the bus; otherwise the application
    QTest::addColumn<bool>("isEarly");  // before the request arrives
    QTest::newRow("application") << false << false;
    QTest::newRow("application, early") << false << true;
    QTest::newRow("portal") << true << false;
}

void ServiceTest::abandonedDialogsClose()
{
    QFETCH(bool, isPortal);
    QFETCH(bool, isEarly);
    startService();
    const QString address = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
    QString application =
        QDBusConnection::connectToBus(address, u"application"_s).baseService().mid(1).replace(u'.', u'_');
    if (isEarly)
        QDBusConnection::disconnectFromBus(u"application"_s);
    const auto call =
        prepareCall(u"wait"_s, {}, {}, u"/org/freedesktop/portal/desktop/request/%1/t"_s.arg(application));
    const auto pending = QDBusConnection::connectToBus(address, u"portal"_s).asyncCall(call, patience);
    QTRY_VERIFY_WITH_TIMEOUT(log().contains("wait"), patience);
    QDBusConnection::disconnectFromBus(isPortal ? u"portal"_s : u"application"_s);
    QTRY_VERIFY_WITH_TIMEOUT(log().contains("gone"), patience);
    QVERIFY(log().contains(R"({"event":"abandoned"})")); // so that the user is informed
    QTRY_COMPARE_WITH_TIMEOUT(dialogProcesses(), QByteArray(), patience);
    if (!isPortal)
        QTRY_VERIFY_WITH_TIMEOUT(pending.isFinished(), patience);
    for (const QString &name : {u"application"_s, u"portal"_s})
        QDBusConnection::disconnectFromBus(name);
}

void ServiceTest::userHearsOfAnAbandonedDialog()
{
    Desktop desktop;
    QVERIFY(
        m_bus.registerObject(u"/org/freedesktop/Notifications"_s, &desktop, QDBusConnection::ExportAllSlots));
    QVERIFY(m_bus.registerService(u"org.freedesktop.Notifications"_s));
    QProcess dialog;
    dialog.start(buildPath("/bin/kelmar-print"), {u"--dialog-request"_s});
    dialog.write("{\"kind\":\"choose\",\"title\":\"T\"}\n");
    QByteArray said;
    QTRY_VERIFY_WITH_TIMEOUT((said += dialog.readAllStandardOutput()).contains("shown"), patience);
    dialog.write("{\"event\":\"abandoned\"}\n");
    dialog.closeWriteChannel();
    QTRY_COMPARE_WITH_TIMEOUT(dialog.state(), QProcess::NotRunning, patience);
    QVERIFY2(desktop.text.contains("closed"_L1), qPrintable(desktop.text));
    QVERIFY((said + dialog.readAllStandardOutput()).contains(R"({"response":1})"));
}

void ServiceTest::placesAreLimited()
{
    constexpr int ofOne = 8, all = 32;
    startService();
    const auto fill = [this](const QString &appId) {
        const qsizetype before = log().count("\"wait\"");
        for (int i = 0; i < ofOne; ++i)
            m_bus.asyncCall(prepareCall(u"wait"_s, {}, appId), patience);
        QTRY_COMPARE_WITH_TIMEOUT(log().count("\"wait\""), before + ofOne, patience);
    };
    fill(u"a"_s);
    const Answer refused = call(prepareCall(u"T"_s, {}, u"a"_s));
    QCOMPARE(refused.response, 2);
    QVERIFY(refused.results.value(u"message"_s).toString().contains("Too many"_L1));
    QCOMPARE(call(printCall(0, u"a"_s)).response, 2);
    QCOMPARE(call(prepareCall(u"T"_s, {}, u"b"_s)).response, 0);
    QCOMPARE(m_bus.call(openCall("T"), QDBus::BlockWithGui, patience).type(), QDBusMessage::ReplyMessage);
    for (int i = 1; i < all / ofOne; ++i)
        fill(QString::number(i));
    QCOMPARE(call(prepareCall(u"T"_s, {}, u"b"_s)).response, 2);
    const QDBusMessage ofQueue = m_bus.call(openCall("T"), QDBus::BlockWithGui, patience);
    QCOMPARE(ofQueue.errorName(), u"org.kelmar.Print1.Error.TooManyDialogs"_s);
    QTRY_COMPARE_WITH_TIMEOUT(dialogProcesses().split(' ').size(), all, patience);
}

// A document from an application uses no space before the user has agreed to print it.
void ServiceTest::documentStaysWhereItIs()
{
    constexpr qint64 size = 400 * 1024 * 1024;
    QTemporaryFile file;
    QVERIFY(file.open() && file.resize(size));
    const int fd = file.handle();
    QProcess dialog;
    dialog.setChildProcessModifier([fd] { ::fcntl(fd, F_SETFD, 0); });
    dialog.start(buildPath("/bin/kelmar-print"), {u"--dialog-request"_s});
    dialog.write(QByteArray(R"({"kind":"print","title":"T","document":)") + QByteArray::number(fd) + "}\n");
    QByteArray said;
    QTRY_VERIFY_WITH_TIMEOUT((said += dialog.readAllStandardOutput()).contains("shown"), patience);
    QFile counters(u"/proc/%1/io"_s.arg(dialog.processId()));
    QVERIFY(counters.open(QIODevice::ReadOnly));
    const QByteArray written = counters.readAll().split('\n').value(1); // "wchar: BYTES"
    QVERIFY(written.startsWith("wchar: "));
    QVERIFY2(written.mid(7).toLongLong() < size / 10, written.constData());
    // It must be the document that the user has agreed to.
    QCOMPARE(file.write("x"), 1);
    QVERIFY(file.flush());
    QTRY_VERIFY_WITH_TIMEOUT(
        (said += dialog.readAllStandardOutput()).contains(R"({"reason":"document","response":2})"), patience);
    dialog.kill();
    QVERIFY(dialog.waitForFinished(patience));
}

void ServiceTest::documentOutlivesItsRequest()
{
    startService();
    const auto taken = [this](const QDBusMessage &call) {
        const qsizetype before = log().size();
        const auto pending = m_bus.asyncCall(call, patience);
        QTRY_VERIFY_WITH_TIMEOUT(log().size() > before, patience);
        const QString handle = call.arguments().first().value<QDBusObjectPath>().path();
        m_bus.call(QDBusMessage::createMethodCall(portalName, handle,
                                                  u"org.freedesktop.impl.portal.Request"_s, u"Close"_s));
    };
    taken(printCall(0, {}, u"wait"_s));
    taken(prepareCall(u"wait"_s));
    QTRY_VERIFY_WITH_TIMEOUT(log().contains("gone"), patience);
    QCOMPARE(log().count("gone"), 1);
}

void ServiceTest::sameHandleTwice()
{
    startService();
    const auto first = m_bus.asyncCall(prepareCall(u"wait"_s, {}, {}, u"/request/mine"_s), patience);
    QTRY_VERIFY_WITH_TIMEOUT(log().contains("wait"), patience);
    QCOMPARE(call(prepareCall(u"T"_s, {}, {}, u"/request/mine"_s)).response, 2);
    QCOMPARE(call(prepareCall(u"T"_s, {}, {}, portalPath)).response, 2);
    QCOMPARE(call(prepareCall(u"T"_s)).response, 0); // the portal is still there
    QVERIFY(!first.isFinished());
}

void ServiceTest::documentFromTheQueue()
{
    startService();
    const auto open = [&](const QByteArray &title) {
        return m_bus.call(openCall(title), QDBus::BlockWithGui, patience).type();
    };
    QCOMPARE(open("Letter \xff\xfe"), QDBusMessage::ReplyMessage);
    QCOMPARE(lastRequest().value("title"_L1).toString(), u"Letter \ufffd\ufffd"_s);
    QCOMPARE(lastRequest().value("copies"_L1).toInt(), 3);
    QCOMPARE(log(u".document"_s), QByteArray("PDF"));
    QCOMPARE(open("wait"), QDBusMessage::ReplyMessage); // visible and still open
    QCOMPARE(open("crash"), QDBusMessage::ErrorMessage);
    // A caller that leaves before the dialog is visible.
    const QString other = u"service-test-caller"_s;
    QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), other)
        .asyncCall(openCall("silent"));
    QTRY_VERIFY_WITH_TIMEOUT(log().contains("silent"), patience);
    QDBusConnection::disconnectFromBus(other);
    QTRY_VERIFY_WITH_TIMEOUT(log().contains("gone"), patience);
}

// Other users wait for the queue.
void ServiceTest::queueDoesNotWaitForADialog()
{
    startService();
    const auto open = [&](const QByteArray &title) {
        return m_bus.call(openCall(title), QDBus::BlockWithGui, patience);
    };
    QElapsedTimer time;
    time.start();
    QCOMPARE(open("message").errorName(), u"org.kelmar.Print1.Error.BadDocument"_s);
    QVERIFY2(time.elapsed() < 3000, qPrintable(QString::number(time.elapsed())));
    QCOMPARE(open("no display").errorName(), u"org.kelmar.Print1.Error.NoDisplay"_s);
    QTRY_COMPARE_WITH_TIMEOUT(dialogProcesses().split(' ').size(), 1, patience);
    QCOMPARE(open("silent").type(), QDBusMessage::ReplyMessage); // the service has the document
    const int silent = dialogProcesses().split(' ').value(1).toInt();
    QVERIFY(silent > 1);
    QCOMPARE(::kill(silent, SIGKILL), 0);
    QTRY_VERIFY_WITH_TIMEOUT(log().contains(R"("kind":"lost")"), patience); // the user is informed
}

void ServiceTest::notifiesTheDesktop()
{
    Desktop desktop;
    QVERIFY(
        m_bus.registerObject(u"/org/freedesktop/Notifications"_s, &desktop, QDBusConnection::ExportAllSlots));
    QVERIFY(m_bus.registerService(u"org.freedesktop.Notifications"_s));
    QProcess process;
    process.start(buildPath("/bin/kelmar-print-service"), {u"--notify"_s});
    process.write(R"({"title": "A & B", "text": "<b>Job 1</b>\ndone", "urgent": true})");
    process.closeWriteChannel();
    QTRY_COMPARE_WITH_TIMEOUT(process.state(), QProcess::NotRunning, patience);
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(desktop.title, u"A & B"_s);
    QCOMPARE(desktop.text, u"&lt;b&gt;Job 1&lt;/b&gt;\ndone"_s); // such a desktop interprets markup
    QCOMPARE(desktop.hints.value(u"urgency"_s), QVariant::fromValue<uchar>(2));
}

void ServiceTest::leavesWhenIdle()
{
    startService({u"--idle"_s, u"2"_s});
    QSignalSpy left(m_service.get(), &QProcess::finished);
    const Answer chosen = call(prepareCall(u"T"_s));
    QCOMPARE(chosen.response, 0);
    QVERIFY(!left.wait(3000)); // a token is valid
    QCOMPARE(call(printCall(chosen.token())).response, 0);
    QTRY_VERIFY_WITH_TIMEOUT(serviceIsGone(), patience);
    QCOMPARE(m_service->exitCode(), 0);
}

void ServiceTest::tellsHighContrast()
{
    DesktopSettings settings;
    QVERIFY(m_bus.registerObject(u"/org/freedesktop/portal/desktop"_s, &settings,
                                 QDBusConnection::ExportAllSlots));
    QVERIFY(m_bus.registerService(u"org.freedesktop.portal.Desktop"_s));
    const QString contrast = u"org.freedesktop.appearance/contrast"_s,
                  theme = u"org.gnome.desktop.interface/gtk-theme"_s,
                  color = u"org.freedesktop.appearance/color-scheme"_s;
    for (const auto &[values, scheme] : std::initializer_list<std::pair<QVariantMap, QByteArray>>{
             {{}, ""},
             {{{contrast, 0U}, {color, 1U}, {theme, u"Adwaita"_s}}, ""},
             {{{contrast, 1U}, {color, 0U}}, "high-contrast"},
             {{{contrast, 1U}, {color, 1U}}, "high-contrast-dark"},
             {{{theme, u"HighContrastInverse"_s}}, "high-contrast-dark"}}) {
        settings.values = values;
        QProcess process;
        process.start(buildPath("/bin/kelmar-print-service"), {u"--color-scheme"_s});
        QTRY_COMPARE_WITH_TIMEOUT(process.state(), QProcess::NotRunning, patience);
        QCOMPARE(process.readAllStandardOutput().trimmed(), scheme);
    }
}

void ServiceTest::goesWithTheBus()
{
    startService();
    QDBusConnection::disconnectFromBus(connectionName);
    m_daemon.reset();
    QTRY_VERIFY_WITH_TIMEOUT(serviceIsGone(), patience);
}

void ServiceTest::aThousandRequestsLeaveNothing()
{
    qunsetenv("STUB_LOG");
    startService();
    const QString process = u"/proc/%1"_s.arg(m_service->processId());
    const auto entries = [&process](const QString &folder) {
        return QDir(process + folder)
            .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
            .size();
    };
    const auto privateKilobytes = [&process] {
        QFile file(process + u"/smaps_rollup"_s);
        qint64 sum = 0;
        if (!file.open(QIODevice::ReadOnly))
            return sum;
        for (const QByteArray &line : file.readAll().split('\n')) {
            if (line.startsWith("Private_Dirty:"))
                sum += line.simplified().split(' ').value(1).toLongLong();
        }
        return sum;
    };
    const auto ask = [this](int times) {
        constexpr int atOnce = 8; // of one application
        for (int i = 0; i < times; i += atOnce) {
            QList<QDBusPendingCall> calls;
            for (int j = 0; j < atOnce; ++j)
                calls.append(m_bus.asyncCall(prepareCall(j ? u"cancel"_s : u"crash"_s), patience));
            for (QDBusPendingCall &pending : calls) {
                pending.waitForFinished();
                QVERIFY(answerOf(pending.reply()).response > 0);
            }
        }
    };
    ask(20);
    QTRY_COMPARE_WITH_TIMEOUT(dialogProcesses(), QByteArray(), patience);
    const qsizetype files = entries(u"/fd"_s), threads = entries(u"/task"_s);
    [[maybe_unused]] const qint64 before = privateKilobytes();
    ask(1000);
    QTRY_COMPARE_WITH_TIMEOUT(dialogProcesses(), QByteArray(), patience);
    QTRY_COMPARE_WITH_TIMEOUT(entries(u"/fd"_s), files, patience);
    QCOMPARE(entries(u"/task"_s), threads);
    const QDBusMessage tree = m_bus.call(QDBusMessage::createMethodCall(
        portalName, portalPath, u"org.freedesktop.DBus.Introspectable"_s, u"Introspect"_s));
    QVERIFY(tree.arguments().value(0).toString().contains("PreparePrint"_L1));
    QVERIFY(!tree.arguments().value(0).toString().contains("<node name"_L1)); // of a request
#if !defined(__SANITIZE_ADDRESS__)                                            // which keeps freed memory
    QVERIFY2(privateKilobytes() - before < 300, qPrintable(QString::number(privateKilobytes() - before)));
#endif
}

QTEST_GUILESS_MAIN(ServiceTest)
#include "service_test.moc"
