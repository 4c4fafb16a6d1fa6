// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/preset_store.h"
#include "host/session/session_state.h"
#include "host/window/messages/message_bar.h"
#include "host/window/pages/page_book.h"
#include "host/window/pages/page_list.h"
#include "host/window/print_window.h"
#include "platform/key_value_object.h"
#include "tests/integration/batch_call.h"
#include "tests/support/paths.h"

#include <QApplication>
#include <QDir>
#include <QJsonArray>
#include <QMenu>
#include <QProcess>
#include <QPushButton>
#include <QTest>

using namespace host;
using namespace Qt::StringLiterals;

namespace {

const QString document = sourcePath("/demo/report.pdf");

bool runs(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, arguments);
    return process.waitForFinished() && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0;
}

} // namespace

// Presets are compatible with other programs, in both directions: with a real print server and its clients.
class PresetTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void otherProgramsPrintWithThePreset();
    void fileThatCannotBeReadIsTold();
    void presetsOfOtherProgramsAreThere();
    void codesAreNotKept_data();
    void codesAreNotKept();
    void panelsTakeAPresetAndGiveItBack();

private:
    int run(const QStringList &words);
    QJsonObject preset(const QString &name);

    PrivateCupsd m_server;
    std::optional<CupsPrintSystem> m_system;
    Extensions m_extensions{Extensions::installedBundles(buildPath("/bin"))};
    QJsonObject m_json;
};

void PresetTest::initTestCase()
{
    if (const QString missing = PrivateCupsd::missing(); !missing.isEmpty())
        QSKIP(qPrintable(missing));
    QVERIFY2(startPrivately(m_server, &m_system), qPrintable(m_server.problem()));
    QVERIFY2(m_server.addQueue(u"office"_s, buildPath("/ppds/kelm880.ppd")), qPrintable(m_server.problem()));
    QVERIFY2(m_server.addQueue(u"standard"_s, sourcePath("/tests/host/print_mode.ppd")),
             qPrintable(m_server.problem()));
}

int PresetTest::run(const QStringList &words)
{
    return callBatch(QStringList({u"-d"_s, u"office"_s}) + words, *m_system, m_extensions, &m_json);
}

QJsonObject PresetTest::preset(const QString &name)
{
    if (run({u"--presets"_s}) != ExitSuccess)
        return {};
    for (const QJsonValue &preset : m_json[u"presets"_s].toArray()) {
        if (preset[u"name"_s].toString() == name)
            return preset[u"options"_s].toObject();
    }
    return {};
}

void PresetTest::otherProgramsPrintWithThePreset()
{
    QCOMPARE(run({u"--save-preset"_s, u"zwölf"_s, u"-n"_s, u"2"_s, u"-P"_s, u"1"_s, u"--set"_s,
                  u"Duplex=DuplexNoTumble"_s, u"--set"_s, u"PrintMode=Private"_s, u"--set"_s,
                  u"privatePassword=12345"_s, u"-o"_s, u"job-priority=70"_s}),
             int(ExitSuccess));
    const QJsonObject kept = preset(u"zwölf"_s);
    QCOMPARE(kept[u"PrintMode"_s].toString(), u"Private"_s);
    QCOMPARE(kept[u"job-priority"_s].toString(), u"70"_s);
    QVERIFY2(!kept.contains(u"DINDigit1"_s) && !kept.contains(u"privatePassword"_s) &&
                 !kept.contains(u"page-ranges"_s),
             QJsonDocument(kept).toJson().constData());
    QVERIFY(runs(u"lp"_s, {u"-d"_s, u"office/zwölf"_s, document}));
    const auto job = m_server.waitForNextJob();
    QVERIFY(job);
    QCOMPARE(job->copies, 2);
    QCOMPARE(job->options.value(u"Duplex"_s), u"DuplexNoTumble"_s);
    QCOMPARE(job->options.value(u"PrintMode"_s), u"Private"_s);
    QCOMPARE(run({u"--delete-preset"_s, u"zwölf"_s}), int(ExitSuccess));
    QVERIFY(preset(u"zwölf"_s).isEmpty());
    QCOMPARE(run({u"--delete-preset"_s, u"zwölf"_s}), int(ExitUsage));
    QCOMPARE(run({u"-d"_s, u"office/zwölf"_s, u"--summary"_s}), int(ExitUsage));
    QCOMPARE(m_json[u"error"_s][u"code"_s].toString(), u"no-such-preset"_s);
}

// As root, the presets of all users.
void PresetTest::fileThatCannotBeReadIsTold()
{
    const PresetStore::Files files = PresetStore::filesOfCups();
    const QString path = files.writesForAllUsers ? files.allUsers : files.users;
    (void)QFile::remove(path);
    QVERIFY(QDir().mkpath(path)); // a folder, which root cannot read either
    QCOMPARE(run({u"--summary"_s}), int(ExitSuccess));
    QVERIFY2(m_json[u"notices"_s][0].toString().startsWith(u"Your own defaults"_s),
             QJsonDocument(m_json).toJson().constData());
    QCOMPARE(run({u"-d"_s, u"office/any"_s, u"--summary"_s}), int(ExitFailure));
    QVERIFY(QDir().rmdir(path));
}

void PresetTest::presetsOfOtherProgramsAreThere()
{
    QVERIFY(runs(u"lpoptions"_s, {u"-p"_s, u"office/theirs"_s, u"-o"_s, u"job-priority=30"_s, u"-o"_s,
                                  u"Duplex=DuplexTumble"_s}));
    QCOMPARE(preset(u"theirs"_s)[u"Duplex"_s].toString(), u"DuplexTumble"_s);
    // Unknown options are kept when the others change.
    QCOMPARE(
        run({u"-d"_s, u"office/theirs"_s, u"--save-preset"_s, u"theirs"_s, u"--set"_s, u"TonerSave=True"_s}),
        int(ExitSuccess));
    const QJsonObject kept = preset(u"theirs"_s);
    QCOMPARE(kept[u"job-priority"_s].toString(), u"30"_s);
    QCOMPARE(kept[u"Duplex"_s].toString(), u"DuplexTumble"_s);
    QCOMPARE(kept[u"TonerSave"_s].toString(), u"True"_s);
    QVERIFY(runs(u"lpoptions"_s, {u"-x"_s, u"office/theirs"_s}));
    QVERIFY(preset(u"theirs"_s).isEmpty());
}

void PresetTest::codesAreNotKept_data()
{
    QTest::addColumn<QString>("queue");
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QByteArray>("kept");
    QTest::newRow("digits") << u"office"_s
                            << QStringList{u"-o"_s,         u"dindigit1=7"_s, u"--set"_s,
                                           u"DCDigit2=7"_s, u"--set"_s,       u"PrintMode=Private"_s}
                            << QByteArray("PrintMode=Private");
    QTest::newRow("job password") << u"standard"_s << QStringList{u"-o"_s, u"job-password=7777"_s,
                                                                  u"-o"_s, u"job-account-id=7"_s,
                                                                  u"-o"_s, u"job-accounting-user-id=7"_s,
                                                                  u"-n"_s, u"3"_s}
                                  << QByteArray("copies=3");
}

// By a program without a bundle that declares codes.
void PresetTest::codesAreNotKept()
{
    QFETCH(QString, queue);
    QFETCH(QStringList, words);
    QFETCH(QByteArray, kept);
    const QStringList call = {u"-d"_s, queue, u"--save-preset"_s, u"code"_s};
    Extensions none({});
    QCOMPARE(callBatch(call + words, *m_system, none, &m_json), int(ExitSuccess));
    QVERIFY(m_json[u"notices"_s].toArray().size() > 0);
    const PresetStore::Files files = PresetStore::filesOfCups();
    QFile file(files.writesForAllUsers ? files.allUsers : files.users);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray content = file.readAll();
    QVERIFY2(content.contains(kept) && !content.contains('7'), content.constData());
}

void PresetTest::panelsTakeAPresetAndGiveItBack()
{
    PrintError error;
    const QString rgbSource = u"com.kelmar.pde.advancedcolorsettings.rgb-source"_s;
    const Preset gray{
        u"gray"_s, {{u"ColorType"_s, u"Mono"_s}, {rgbSource, u"3"_s}, {u"StapleLocation"_s, u"Nowhere"_s}}};
    QVERIFY2(PresetStore().save(u"office"_s, gray, &error), qPrintable(error.message));
    PrintTask task;
    task.files = {document};
    task.printer = u"office"_s;
    task.firstPage = u"color-settings-2"_s;
    PrintWindow window(*m_system, m_extensions, task);
    QVERIFY(window.open(&error));
    window.show();
    QTRY_VERIFY(window.session() && QTest::qWaitForWindowActive(&window));
    const PpdDocument *ppd = window.session()->ppd();
    auto *balance =
        window.session()->panels().panel(window.session()->panels().ofKeyword(u"ColorBalanceCyan"_s));
    balance->keyValueObject()->setValueForKey(u"2"_s, u"ColorBalanceCyan"_s);
    auto *button = window.findChild<QPushButton *>(u"presets"_s);
    button->setFocus();
    QVERIFY(button->menu());
    Q_EMIT button->menu()->aboutToShow();
    QTRY_VERIFY(!platform::Background::isUnderWay());
    for (QAction *action : button->menu()->actions()) {
        if (action->text() == u"gray"_s)
            action->trigger();
    }
    QCOMPARE(ppd->markedChoice(u"ColorType"_s) + ppd->markedChoice(u"ColorBalanceCyan"_s), u"Mono0"_s);
    QCOMPARE(window.session()->state().printSettings.value(rgbSource).toString(), u"3"_s);
    QVERIFY2(window.findChild<MessageBar *>()->text().contains(u"Staple"_s),
             qPrintable(window.findChild<MessageBar *>()->text()));
    QTest::keyClick(window.book()->list(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(ppd->markedChoice(u"ColorType"_s) + ppd->markedChoice(u"ColorBalanceCyan"_s), u"Auto2"_s);
    QCOMPARE(balance->keyValueObject()->valueForKey(u"ColorBalanceCyan"_s).toString(), u"2"_s);
    QVERIFY(!window.session()->state().printSettings.value(rgbSource).isValid());
    QTest::keyClick(window.book()->list(), Qt::Key_Y, Qt::ControlModifier);
    window.print();
    QTRY_VERIFY(window.submission());
    const auto job = m_server.waitForJob(window.submission()->job.id);
    QVERIFY(job);
    QCOMPARE(job->options.value(u"ColorType"_s), u"Mono"_s);
    QCOMPARE(job->options.value(rgbSource), u"3"_s);
}

int main(int argc, char **argv)
{
    QApplication app(argc, argv); // panels consist of widgets
    PresetTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "preset_test.moc"
