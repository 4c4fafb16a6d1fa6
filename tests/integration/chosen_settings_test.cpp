// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/setting_keys.h"
#include "host/window/messages/message_bar.h"
#include "host/window/pages/page_book.h"
#include "host/window/print_window.h"
#include "host/window/printers/printer_picker.h"
#include "platform/key_value_object.h"
#include "tests/integration/batch_call.h"
#include "tests/support/paths.h"

#include <QJsonArray>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace host;
using namespace Qt::StringLiterals;

namespace {

const QString document = sourcePath("/demo/report.pdf");
const QStringList privateJob{u"--set"_s, u"PrintMode=Private"_s, u"--set"_s, u"privatePassword=12345"_s};

// Whether argument 5 of a filter contains this word.
bool arrived(const CapturedJob &job, const QString &option)
{
    return (u' ' + job.optionText + u' ').contains(u' ' + option + u' ');
}

} // namespace

// The chosen settings are printed: both front ends with the family's bundle and PPDs, and a real print
// server.
class ChosenSettingsTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void privateJobStaysPrivateOnAnotherPrinter();
    void choiceBeatsTheQueuesDefault();
    void defaultThatAppearsLaterIsTold();
    void waysOutKeepPrivatePrinting_data();
    void waysOutKeepPrivatePrinting();
    void gapsInTheProtection_data();
    void gapsInTheProtection();
    void windowAsksForAMissingCode_data();
    void windowAsksForAMissingCode();
    void presetIsShownAndWhatIsDroppedTold();
    void copiesAreCollatedAsChosen_data();
    void copiesAreCollatedAsChosen();

private:
    int run(const QStringList &words);
    QString notices() const;
    std::optional<CapturedJob> printed();
    PrintWindow &open(const QString &printer, const QList<ChosenSetting> &settings = {});
    void pick(const QString &printer);

    PrivateCupsd m_server;
    std::optional<CupsPrintSystem> m_system;
    Extensions m_extensions{Extensions::installedBundles(buildPath("/bin"))};
    std::unique_ptr<PrintWindow> m_window;
    QJsonObject m_json;
};

void ChosenSettingsTest::initTestCase()
{
    if (const QString missing = PrivateCupsd::missing(); !missing.isEmpty())
        QSKIP(qPrintable(missing));
    QVERIFY2(startPrivately(m_server, &m_system), qPrintable(m_server.problem()));
    const QString ppds = buildPath("/ppds/");
    for (const QString &queue : {u"office"_s, u"second"_s, u"admin"_s})
        QVERIFY2(m_server.addQueue(queue, ppds + u"kelm880.ppd"_s), qPrintable(m_server.problem()));
    QVERIFY(m_server.addQueue(u"small"_s, ppds + u"kelo110.ppd"_s)); // no private printing
    QVERIFY(m_server.addQueue(u"diskless"_s, ppds + u"kelo2200.ppd"_s));
    QVERIFY(m_server.setJobDefault(u"admin"_s, u"sides"_s, u"two-sided-long-edge"_s));
}

void ChosenSettingsTest::cleanup()
{
    m_window.reset();
}

int ChosenSettingsTest::run(const QStringList &words)
{
    return callBatch(words, *m_system, m_extensions, &m_json);
}

QString ChosenSettingsTest::notices() const
{
    QStringList lines;
    for (const QJsonValue &notice : m_json[u"notices"_s].toArray())
        lines.append(notice.toString());
    return lines.join(u'\n');
}

std::optional<CapturedJob> ChosenSettingsTest::printed()
{
    const QJsonObject job = m_json[u"job"_s].toObject();
    if (!job[u"differences"_s].toArray().isEmpty())
        qWarning() << job;
    return m_server.waitForJob(m_window ? m_window->submission()->job.id : job[u"id"_s].toInt());
}

PrintWindow &ChosenSettingsTest::open(const QString &printer, const QList<ChosenSetting> &settings)
{
    PrintTask task;
    task.files = {document};
    task.printer = printer;
    task.prepare = [settings](DialogSession *session, PrintError *error) {
        return std::all_of(settings.begin(), settings.end(),
                           [&](const ChosenSetting &setting) { return choose(session, setting, error); });
    };
    m_window = std::make_unique<PrintWindow>(*m_system, m_extensions, task);
    PrintError error;
    if (!m_window->open(&error))
        qFatal("%s", qPrintable(error.message));
    m_window->show();
    if (!QTest::qWaitFor([this] { return m_window->session() != nullptr; }))
        qFatal("the print server has not answered");
    return *m_window;
}

void ChosenSettingsTest::pick(const QString &printer)
{
    Q_EMIT m_window->findChild<PrinterPicker *>()->picked(printer);
    QTRY_COMPARE(m_window->session()->destination().queue, printer);
}

void ChosenSettingsTest::privateJobStaysPrivateOnAnotherPrinter()
{
    PrintWindow &window = open(u"office"_s, {{u"PrintMode"_s, u"Private"_s},
                                             {u"privatePassword"_s, u"12345"_s},
                                             {u"job-priority"_s, u"70"_s, ChosenSetting::Kind::JobOption}});
    window.book()->showPage(window.book()->pageNamed(u"color-settings-2"_s));
    const int panel = window.session()->panels().ofKeyword(u"SharpnessVRN"_s);
    window.session()->panels().panel(panel)->keyValueObject()->setValueForKey(u"2"_s,
                                                                              u"SharpnessVRN"_s); // a slider
    pick(u"small"_s);
    QCOMPARE(window.book()->currentName().section(u'.', -1), u"color-settings-2"_s);
    const QString text = window.findChild<MessageBar *>()->text();
    QVERIFY2(text.startsWith(u"Please note\nThis printer does not have “Print Mode: Private”"_s),
             qPrintable(text));
    QVERIFY2(!text.contains(u"12345"_s), qPrintable(text));
    pick(u"second"_s); // has the option again
    window.print();
    QTRY_VERIFY2(window.submission(), qPrintable(window.findChild<MessageBar *>()->text()));
    const auto job = printed();
    QVERIFY(job);
    for (const QString &option :
         {u"PrintMode=Private"_s, u"DINDigit1=1"_s, u"DINDigit5=5"_s, u"SharpnessVRN=2"_s})
        QVERIFY2(arrived(*job, option), qPrintable(option + u" in "_s + job->optionText));
    QVERIFY(window.submission()->job.differences.isEmpty()); // the priority, which filters do not receive
}

void ChosenSettingsTest::choiceBeatsTheQueuesDefault()
{
    QCOMPARE(run({u"--batch"_s, u"-d"_s, u"admin"_s, document}), int(ExitSuccess));
    auto job = printed();
    QVERIFY(job && job->data.contains("*Duplex DuplexNoTumble"));
    QCOMPARE(run({u"--batch"_s, u"-d"_s, u"admin"_s, u"--set"_s, u"Duplex=None"_s, document}),
             int(ExitSuccess));
    job = printed();
    QVERIFY(job && job->data.contains("*Duplex None"));
    QVERIFY2(arrived(*job, u"sides=one-sided"_s), qPrintable(job->optionText));
    QVERIFY(m_json[u"job"_s][u"differences"_s].toArray().isEmpty());
}

void ChosenSettingsTest::defaultThatAppearsLaterIsTold()
{
    PrintWindow &window = open(u"second"_s);
    QVERIFY(m_server.setJobDefault(u"second"_s, u"sides"_s, u"two-sided-long-edge"_s));
    window.print(); // as "Off", which is shown to the user
    QTRY_VERIFY2(window.submission(), qPrintable(window.findChild<MessageBar *>()->text()));
    QVERIFY(m_server.setJobDefault(u"second"_s, u"sides"_s, u"one-sided"_s));
    QVERIFY2(window.submission()->job.differences.join(u' ').contains(u"sides"_s),
             qPrintable(window.submission()->job.differences.join(u' ')));
}

void ChosenSettingsTest::waysOutKeepPrivatePrinting_data()
{
    QTest::addColumn<QString>("printer");
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<int>("code");
    const QStringList kept{u"--set"_s, u"JobRetention=Week"_s};
    QTest::newRow("retention gives way") << u"office"_s << privateJob + kept << int(ExitSuccess);
    QTest::newRow("whichever came last") << u"office"_s << kept + privateJob << int(ExitSuccess);
    QTest::newRow("no hard disk") << u"diskless"_s << privateJob << int(ExitConflict);
}

void ChosenSettingsTest::waysOutKeepPrivatePrinting()
{
    QFETCH(QString, printer);
    QFETCH(QStringList, words);
    QFETCH(int, code);
    QCOMPARE(run(QStringList({u"--batch"_s, u"--resolve"_s, u"-d"_s, printer, document}) + words), code);
    if (code == ExitConflict) {
        QVERIFY2(notices().contains(u"keeps “Print Mode: Private”"_s), qPrintable(notices()));
        open(printer, {{u"PrintMode"_s, u"Private"_s}, {u"privatePassword"_s, u"12345"_s}});
        QCOMPARE(m_window->findChild<MessageBar *>()->kind(), MessageBar::Kind::Question);
        QCOMPARE(m_window->findChild<MessageBar *>()->buttons().size(), 1); // no changes to apply
        QVERIFY(m_window->findChild<MessageBar *>()->text().contains(u"keeps “Print Mode: Private”"_s));
        return;
    }
    const auto job = printed();
    QVERIFY(job && arrived(*job, u"PrintMode=Private"_s) && arrived(*job, u"JobRetention=None"_s));
}

void ChosenSettingsTest::gapsInTheProtection_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QString>("notice");
    QTest::newRow("no code") << privateJob.mid(0, 2)
                             << u"“Print Mode: Private” has been chosen, but no password"_s;
    QTest::newRow("no private printing") << privateJob.mid(2) << u"A password has been given, but not"_s;
    QTest::newRow("both") << privateJob << QString();
    QTest::newRow("neither") << QStringList() << QString();
}

void ChosenSettingsTest::gapsInTheProtection()
{
    QFETCH(QStringList, words);
    QFETCH(QString, notice);
    QCOMPARE(run(QStringList({u"--summary"_s, u"-d"_s, u"office"_s}) + words), int(ExitSuccess));
    QVERIFY2(notices().startsWith(notice) && notices().isEmpty() == notice.isEmpty(), qPrintable(notices()));
    const QByteArray summary = QJsonDocument(m_json[u"summary"_s].toArray()).toJson();
    QCOMPARE(summary.contains("12345"), words == privateJob); // shown if it protects
}

void ChosenSettingsTest::windowAsksForAMissingCode_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("choice");
    QTest::addColumn<QString>("anyway"); // the answer that prints without it
    QTest::newRow("private") << u"PrintMode"_s << u"Private"_s << u"Print Without Password"_s;
    QTest::newRow("department") << u"DeptCode"_s << u"True"_s << u"Print Without Code"_s;
}

void ChosenSettingsTest::windowAsksForAMissingCode()
{
    QFETCH(QString, option);
    QFETCH(QString, choice);
    QFETCH(QString, anyway);
    for (const bool isGiven : {true, false}) {
        PrintWindow &window = open(u"office"_s);
        const int panel = window.session()->panels().ofKeyword(option);
        window.book()->showPage(window.book()->pageNamed(u"print-mode"_s));
        window.session()->panels().panel(panel)->keyValueObject()->setValueForKey(choice, option);
        window.book()->showPage(0);
        for (int i = 0; i < 2; ++i) { // each time
            window.print();
            QVERIFY(!window.submission());
            const MessageBar *bar = window.findChild<MessageBar *>();
            QVERIFY2(bar->text().contains((choice == u"Private" ? u"no password has been given"_s
                                                                : u"no code has been given"_s)),
                     qPrintable(bar->text()));
            QCOMPARE(bar->buttons().first()->text().remove(u'&'), anyway);
            QTest::keyClick(window.focusWidget(), Qt::Key_Escape);
            QVERIFY(window.isVisible());
        }
        window.print();
        auto *field = qobject_cast<QLineEdit *>(window.focusWidget());
        QVERIFY(field && window.book()->pages()->isAncestorOf(field));
        if (isGiven) {
            field->selectAll();
            QTest::keyClicks(field, u"12345"_s);
            window.print();
        } else {
            window.findChild<MessageBar *>()->buttons().first()->click();
        }
        QTRY_VERIFY(window.submission());
    }
}

void ChosenSettingsTest::presetIsShownAndWhatIsDroppedTold()
{
    QFile file(m_server.folder() + u"/.cups/lpoptions"_s);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(
        "Dest office/mine PrintMode=Private DINDigit1=1 DINDigit2=2 DINDigit3=3 DINDigit4=4 DINDigit5=5 "
        "com.kelmar.pde.advancedcolorsettings.rgb-source=3\n");
    file.close();
    QCOMPARE(run({u"--summary"_s, u"-d"_s, u"office/mine"_s}), int(ExitSuccess));
    const QByteArray summary = QJsonDocument(m_json[u"summary"_s].toArray()).toJson();
    QVERIFY2(summary.contains("Private (12345)"), summary.constData());
    QVERIFY2(notices().isEmpty(), qPrintable(notices()));
    // The queue's device has no address, so it cannot be queried for profiles.
    QCOMPARE(run({u"--batch"_s, u"-d"_s, u"office/mine"_s, u"--set"_s, u"ImageType=Photo"_s, document}),
             int(ExitSuccess));
    QVERIFY2(notices().contains(u"“Color Settings 1” are not sent with the job (rgb-source)"_s),
             qPrintable(notices()));
}

void ChosenSettingsTest::copiesAreCollatedAsChosen_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("collate");
    for (const QString &file : {u"report.pdf"_s, u"report.ps"_s, u"note.txt"_s}) {
        for (const QString &collate : {u"True"_s, u"False"_s})
            QTest::addRow("%s %s", qPrintable(file), qPrintable(collate)) << file << collate;
    }
}

void ChosenSettingsTest::copiesAreCollatedAsChosen()
{
    QFETCH(QString, file);
    QFETCH(QString, collate);
    QCOMPARE(run({u"--batch"_s, u"-d"_s, u"office"_s, u"-n"_s, u"3"_s, u"--set"_s, u"collate="_s + collate,
                  sourcePath("/demo/") + file}),
             int(ExitSuccess));
    const auto job = printed();
    QVERIFY(job);
    // The device repeats the pages, with collation as requested.
    QVERIFY(job->data.contains("%%BeginFeature: *Collate " + collate.toLatin1() + '\n'));
    QCOMPARE(job->data.count("%%BeginFeature: *Collate "), 1);
    QVERIFY(job->data.contains("*NumCopies 3\n"));
}

QTEST_MAIN(ChosenSettingsTest)
#include "chosen_settings_test.moc"
