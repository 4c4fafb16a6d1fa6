// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/carry_over.h"
#include "host/session/preset_settings.h"
#include "host/session/setting_keys.h"
#include "host/window/guide/search_bar.h"
#include "host/window/messages/message_bar.h"
#include "host/window/pages/page_book.h"
#include "platform/choice_box.h"
#include "platform/key_value_object.h"
#include "tests/host/policy_fixture.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QSpinBox>

using namespace host;
using namespace Qt::StringLiterals;

class PolicyTest : public PolicyFixture
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup()
    {
        m_window.reset();
        Policy::setCurrent({});
    }
    void errorsNameThePlace_data();
    void errorsNameThePlace();
    void batchObeys_data();
    void batchObeys();
    void locksHoldInEverySpelling_data();
    void locksHoldInEverySpelling();
    void defaultsDoNotPassLocks_data();
    void defaultsDoNotPassLocks();
    void nothingElsePassesLocks();
    void saysThatItOffersNone_data();
    void saysThatItOffersNone();
    void codesAreAskedFor_data();
    void codesAreAskedFor();
    void presetForAModelThatProtects();
    void dialogShowsWhatIsLocked();
    void lockedChoiceIsNotGivenUp();
    void panelKeepsWhatIsLocked();
    void panelHidesOptions();
};

void PolicyTest::errorsNameThePlace_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("error"); // its beginning; empty if there is none
    const QByteArray rule = "{\n\"rules\": [\n{\"locked\": {\"A\": \"[{\\\"\"}},\n{";
    QTest::newRow("empty object") << "{}"_ba << QString();
    QTest::newRow("a rule") << rule + "}]}" << QString();
    QTest::newRow("empty file") << ""_ba << u"policy.json, line 1, column 1: "_s;
    QTest::newRow("a list") << "[]"_ba << u"policy.json: it is not a JSON object"_s;
    QTest::newRow("no JSON") << "{\n\"queues\": [\n\"a\",]\n}"_ba
                             << u"policy.json, line 3, column 5: object"_s;
    QTest::newRow("unknown key") << "{\n\"contact\": \"ques\",\n \"ques\": []}"_ba
                                 << u"policy.json: “ques” is not known"_s;
    QTest::newRow("unknown key of a rule")
        << rule + "\n\"lock\": {}}]}" << u"policy.json, rule 2: “lock” is not known"_s;
    QTest::newRow("wrong type in the second rule") << rule + "\n\"queues\": [\"ä\"], \"locked\": []}]}"
                                                   << u"policy.json, rule 2: “locked” takes an object"_s;
    QTest::newRow("number for a choice") << rule + "\n\"defaults\": {\"B\":\"1\",\n\"C\": 2}}]}"
                                         << u"policy.json, rule 2: “C” takes a choice"_s;
    QTest::newRow("number for a queue") << "{\"queues\":\n[1]}"_ba << u"policy.json: “queues” takes a list"_s;
    QTest::newRow("rule of text") << "{\n\"rules\": [\"a\"]}"_ba
                                  << u"policy.json, rule 1: “rules” takes JSON objects"_s;
    QTest::newRow("rules of text") << "{\n\"rules\": \"a\"}"_ba << u"policy.json: “rules” takes a list"_s;
}

void PolicyTest::errorsNameThePlace()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, error);
    QString problem;
    QCOMPARE(Policy::parse(json, u"policy.json"_s, &problem).has_value(), error.isEmpty());
    QVERIFY2(error.isEmpty() ? problem.isNull() : problem.startsWith(error), qPrintable(problem));
}

void PolicyTest::batchObeys_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("colour");
    QTest::addColumn<QString>("sides");
    QTest::newRow("nothing said") << QStringList{u"-d"_s, u"office"_s} << 0 << u"Mono"_s
                                  << u"DuplexNoTumble"_s;
    QTest::newRow("default changed") << QStringList{u"-d"_s, u"office"_s, u"--set"_s, u"Duplex=None"_s} << 0
                                     << u"Mono"_s << u"None"_s;
    QTest::newRow("locked, changed") << QStringList{u"-d"_s, u"office"_s, u"--set"_s, u"ColorType=Auto"_s}
                                     << 1 << QString() << QString();
    QTest::newRow("locked, passed on")
        << QStringList{u"-d"_s, u"office"_s, u"-o"_s, u"ColorType=Auto"_s} << 1 << QString() << QString();
    QTest::newRow("another rule") << QStringList{u"-d"_s, u"attic"_s, u"--set"_s, u"ColorType=Auto"_s} << 0
                                  << u"Auto"_s << QString();
    QTest::newRow("a queue not offered") << QStringList{u"-d"_s, u"raw"_s} << 1 << QString() << QString();
}

void PolicyTest::batchObeys()
{
    QFETCH(QStringList, words);
    QFETCH(int, code);
    QFETCH(QString, colour);
    QFETCH(QString, sides);
    PolicyPrintSystem system(m_system, {}, install(R"({
        "contact": "IT, phone 7", "queues": ["off*", "attic"],
        "rules": [{"queues": ["office"], "defaults": {"Duplex": "DuplexNoTumble"},
                   "locked": {"ColorType": "Mono", "Unknown": "x", "Sharp": "7"}}]})"));
    QCOMPARE(print(system, m_none, words), code);
    QCOMPARE(m_system.submitted.size(), code == 0 ? 1 : 0);
    if (code != 0) {
        QVERIFY2(m_said.contains("Set by the administrator (IT, phone 7)."), m_said.constData());
        return;
    }
    const QList<JobOption> sent = m_system.submitted.first().options;
    QCOMPARE(sentValue(sent, u"ColorType"_s), colour);
    QCOMPARE(sentValue(sent, u"Duplex"_s), sides);
}

void PolicyTest::locksHoldInEverySpelling_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("isAllowed");
    const auto row = [](const char *name, const QString &option, const QString &value, bool isAllowed) {
        QTest::newRow(name) << option << value << isAllowed;
    };
    row("keyword", u"PageSize"_s, u"A3"_s, false);
    row("region", u"PageRegion"_s, u"A3"_s, false);
    row("standard name", u"media"_s, u"A3"_s, false);
    row("capitals", u"MEDIA"_s, u"A3"_s, false);
    row("one capital", u"Media"_s, u"iso_a3_297x420mm"_s, false);
    row("size and tray", u"media"_s, u"A3,Tray2"_s, false);
    row("collection", u"media-col"_s, u"{media-size={x-dimension=29700 y-dimension=42000}}"_s, false);
    row("collection of a name", u"Media-Col"_s, u"{media-size-name=iso_a3_297x420mm}"_s, false);
    row("collection that cannot be told", u"media-col"_s, u"{media-key=x}"_s, false);
    row("sides", u"sides"_s, u"one-sided"_s, false);
    row("other edge", u"Sides"_s, u"two-sided-short-edge"_s, false);
    row("keyword in small letters", u"duplex"_s, u"none"_s, false);
    row("past the filters", u"raw"_s, u"true"_s, false);
    row("past the filters by format", u"document-format"_s, u"application/vnd.cups-raw"_s, false);
    row("what may mean anything", u"output-mode"_s, u"x"_s, false);
    row("the locked size", u"media"_s, u"a4"_s, true);
    row("the locked size by its measures", u"media-col"_s,
        u"{media-size={x-dimension=21000 y-dimension=29700}}"_s, true);
    row("the locked sides", u"sides"_s, u"two-sided-long-edge"_s, true);
    row("tray", u"InputSlot"_s, u"Tray2"_s, true);
    row("priority", u"job-priority"_s, u"70"_s, true);
    row("booklet", u"booklet"_s, u"true"_s, false);
    row("mirror image", u"mirror"_s, u"true"_s, true);
    row("scale", u"natural-scaling"_s, u"70"_s, true);
    row("pages per side", u"number-up"_s, u"2"_s, true);
    row("collation", u"collate"_s, u"false"_s, false);
    row("collation under its standard name", u"multiple-document-handling"_s,
        u"separate-documents-uncollated-copies"_s, false);
    row("the locked collation", u"Collate"_s, u"true"_s, true);
}

// On the command line, and in any other request for a job.
void PolicyTest::locksHoldInEverySpelling()
{
    QFETCH(QString, option);
    QFETCH(QString, value);
    QFETCH(bool, isAllowed);
    useFamily();
    m_system.ppds[u"office"_s] += ppdOption("Collate/Collate", {"True", "False"});
    PolicyPrintSystem system(m_system, {}, install(R"({"rules": [
        {"locked": {"PageSize": "A4", "Duplex": "DuplexNoTumble", "Collate": "True"}}]})"));
    QCOMPARE(print(system, m_none, {u"-d"_s, u"office"_s, u"-o"_s, option + u'=' + value}),
             isAllowed ? 0 : 1);
    QCOMPARE(m_system.submitted.size(), isAllowed ? 1 : 0);
    QVERIFY2(isAllowed || m_said.contains("Set by the administrator."), m_said.constData());
    if (isAllowed) {
        QCOMPARE(sentValue(m_system.submitted.first().options, u"Duplex"_s), u"DuplexNoTumble"_s);
        const QString size = sentValue(m_system.submitted.first().options, u"PageSize"_s);
        QVERIFY2(size.isEmpty() || size == u"A4"_s, qPrintable(size)); // the PPD's default
    }
    m_system.submitted.clear();
    JobRequest request{m_system.printers.first(), {}, u"T"_s, {{u"Duplex"_s, u"DuplexNoTumble"_s}}};
    QVERIFY(system.submit(request, {}).isAccepted());
    for (const auto kind :
         {JobOption::Kind::Choice, JobOption::Kind::Attribute, JobOption::Kind::Preference}) {
        request.options = {{u"Duplex"_s, u"DuplexNoTumble"_s}, {option, value, kind}};
        QCOMPARE(system.submit(request, {}).isAccepted(), isAllowed);
    }
}

void PolicyTest::defaultsDoNotPassLocks_data()
{
    QTest::addColumn<QString>("instance");
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("isServers"); // the server's own default
    QTest::addColumn<int>("code");
    const QString preset = u"mine"_s, none;
    const QString balance = u"ColorBalanceCyan"_s,
                  size = u"{media-size={x-dimension=29700 y-dimension=42000}}"_s;
    QTest::newRow("preset") << preset << u"PageSize"_s << u"A3"_s << false << 1;
    QTest::newRow("preset by another name") << preset << u"MEDIA"_s << u"A3"_s << false << 1;
    QTest::newRow("preset with a collection") << preset << u"media-col"_s << size << false << 1;
    QTest::newRow("preset for a page") << preset << balance << u"2"_s << false << 1;
    QTest::newRow("preset for a page, beside options")
        << preset << u"com.kelmar.pde.advancedcolorsettings.rgb-source"_s << u"3"_s << false << 1;
    QTest::newRow("preset past the filters") << preset << u"raw"_s << u"true"_s << false << 1;
    QTest::newRow("harmless preset") << preset << u"job-priority"_s << u"70"_s << false << 0;
    QTest::newRow("default") << none << u"media"_s << u"A3"_s << false << 0;
    QTest::newRow("default for a page") << none << balance << u"2"_s << false << 0;
    QTest::newRow("default past the filters") << none << u"raw"_s << u"true"_s << false << 0;
    QTest::newRow("the server's") << preset << u"finishings"_s << u"3"_s << true << 0;
    QTest::newRow("the server's, otherwise") << preset << u"media"_s << u"A3"_s << true << 0;
}

// A preset that violates a lock is refused; of the user's defaults the others are used, and the user is
// informed.
void PolicyTest::defaultsDoNotPassLocks()
{
    QFETCH(QString, instance);
    QFETCH(QString, option);
    QFETCH(QString, value);
    QFETCH(bool, isServers);
    QFETCH(int, code);
    useFamily();
    Destination &office = m_system.printers.first();
    office.instance = instance;
    office.options = {{option, value}};
    if (isServers)
        office.serverOptions = office.options.keys();
    Extensions extensions({m_bundle});
    PolicyPrintSystem system(m_system, {m_bundle}, install(R"({"rules": [
        {"locked": {"PageSize": "A4"}, "lockedPanels": ["color-settings-2"]}]})"));
    QCOMPARE(print(system, extensions, {u"-d"_s, office.name()}), code);
    const bool isTold = option != u"job-priority"_s && !isServers;
    QVERIFY2(m_said.contains("Set by the administrator.") == isTold, m_said.constData());
    if (code != 0)
        return;
    const QList<JobOption> sent = m_system.submitted.first().options;
    QVERIFY(sentValue(sent, u"raw"_s).isNull());
    QVERIFY(sentValue(sent, u"ColorBalanceCyan"_s) != u"2"_s);
    // Newer versions of libcups also accept a type and a tray in "media", after the size.
    const QString media = sentValue(sent, u"media"_s);
    QVERIFY2(media.isEmpty() || media.section(u',', 0, 0) == u"A4"_s, qPrintable(media));
}

// Requests that set a session as a whole: a preset of the menu, a resolution of a conflict, an earlier state,
// the settings of another printer.
void PolicyTest::nothingElsePassesLocks()
{
    useFamily();
    m_system.ppds[u"office"_s] += ppdOption("Collate/Collate", {"True", "False"});
    install(R"({"rules": [{"queues": ["office"], "lockedPanels": ["color-settings-2"],
                           "locked": {"PageSize": "A4", "Duplex": "DuplexNoTumble", "Collate": "True"}}]})");
    Extensions extensions({m_bundle});
    PrintError error;
    DialogSession session(m_system.printers.first(), m_system.ppd(m_system.printers.first(), &error));
    session.loadPanels(extensions);
    const auto stands = [&] {
        return session.ppd()->markedChoice(u"PageSize"_s) +
               session.ppd()->markedChoice(u"ColorBalanceCyan"_s);
    };
    QCOMPARE(stands(), u"A40"_s);
    const SessionState start = session.state();
    applyPreset(&session, {},
                {{u"media"_s, u"A3"_s}, {u"ColorBalanceCyan"_s, u"2"_s}, {u"raw"_s, u"true"_s}});
    QCOMPARE(stands(), u"A40"_s);
    QCOMPARE(session.takeNotices().size(), 3);
    session.apply({session.ppd()->described(u"PageSize"_s, u"A3"_s)});
    QCOMPARE(stands(), u"A40"_s);
    QCOMPARE(session.takeNotices().size(), 1);
    SessionState other = start;
    other.marks.insert(u"PageSize"_s, u"A3"_s);
    session.restoreTo(start, other);
    QCOMPARE(stands(), u"A40"_s);
    for (const JobOption &option : session.jobOptions())
        QVERIFY2(option.name != u"raw"_s, qPrintable(option.name));
    DialogSession free(m_system.printers.at(1), nullptr);
    chooseGeneral(&free, u"booklet"_s, u"true"_s);
    chooseGeneral(&free, u"multiple-document-handling"_s, GeneralSettings::handling(false));
    chooseGeneral(&free, u"copies"_s, u"2"_s);
    carryOver(free, &session);
    QVERIFY(session.general().collate && !session.general().layout.isBooklet());
    QCOMPARE(session.general().copies, 2);
    QCOMPARE(session.takeNotices().size(), 2);
}

void PolicyTest::saysThatItOffersNone_data()
{
    QTest::addColumn<bool>("hasDefault");
    QTest::addColumn<QByteArray>("queues");
    QTest::addColumn<QString>("said");
    const QString none =
        u"The rules in policy.json offer none of the printers that have been set up. Set by the administrator."_s;
    QTest::newRow("none") << true << "nowhere"_ba << none;
    QTest::newRow("none, and no default") << false << "nowhere"_ba << none;
    QTest::newRow("one, and no default") << false << "attic"_ba << u"no such printer"_s;
}

// With and without a default printer; no printer is named.
void PolicyTest::saysThatItOffersNone()
{
    QFETCH(bool, hasDefault);
    QFETCH(QByteArray, queues);
    QFETCH(QString, said);
    for (Destination &printer : m_system.printers)
        printer.isDefault = printer.isDefault && hasDefault;
    PolicyPrintSystem system(m_system, {}, install("{\"queues\": [\"" + queues + "\"]}"));
    QCOMPARE(print(system, m_none, {}), 1);
    QVERIFY2(m_said.contains(said.toUtf8()), m_said.constData());
    QVERIFY(showsDialog(system, m_none));
    QTRY_VERIFY(m_window->session() ? queues == "attic" : shows(said));
}

void PolicyTest::codesAreAskedFor_data()
{
    QTest::addColumn<QByteArray>("locked");
    QTest::addColumn<QString>("words");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("said");
    const QString mode = u"--set PrintMode=Private"_s, without = u" --allow-no-password"_s;
    const QString missing = u"no password has been given for it"_s, part = u"Only a part of the code"_s;
    const QByteArray free, locked = R"("PrintMode": "Private")";
    const QString administrator =
        u"“Print Mode” has to be “Private”, with a code. Set by the administrator."_s;
    QTest::newRow("no password") << free << mode << 2 << missing;
    QTest::newRow("allowed") << free << mode + without << 0 << missing;
    QTest::newRow("password") << free << mode + u" --set privatePassword=12345"_s << 0 << QString();
    QTest::newRow("half a password") << free << mode + u" -o DINDigit1=1"_s << 2 << part;
    QTest::newRow("half a password, allowed") << free << mode + u" -o dindigit1=1"_s + without << 2 << part;
    QTest::newRow("digit by digit")
        << free << mode + u" -o DINDigit1=1 -o DINDigit2=0 -o DINDigit3=0 -o DINDigit4=0 -o DINDigit5=0"_s
        << 0 << QString();
    QTest::newRow("no department") << free << u"-o DeptCode"_s << 2 << u"no code has been given for it"_s;
    QTest::newRow("department") << free << u"-o DeptCode --set departmentCode=00001"_s << 0 << QString();
    QTest::newRow("locked") << locked << QString() << 1 << administrator;
    QTest::newRow("locked, allowed") << locked << without << 1 << administrator;
    QTest::newRow("locked, half a password") << locked << u"-o DINDigit1=1"_s << 2 << part;
    const QByteArray other = R"("PrintMode": "Normal")";
    QTest::newRow("locked to a choice without a code") << other << QString() << 0 << QString();
    QTest::newRow("locked, password") << locked << u"--set privatePassword=12345"_s << 0 << QString();
}

void PolicyTest::codesAreAskedFor()
{
    QFETCH(QByteArray, locked);
    QFETCH(QString, words);
    QFETCH(int, code);
    QFETCH(QString, said);
    useFamily();
    Extensions extensions({m_bundle});
    PolicyPrintSystem system(m_system, {m_bundle}, install("{\"rules\": [{\"locked\": {" + locked + "}}]}"));
    QCOMPARE(print(system, extensions, (u"-d office "_s + words).split(u' ', Qt::SkipEmptyParts)), code);
    QVERIFY2(m_said.contains(said.toUtf8()), m_said.constData());
    QCOMPARE(m_system.submitted.size(), code == 0 ? 1 : 0);
}

void PolicyTest::presetForAModelThatProtects()
{
    useFamily(u"kelo110"_s);
    Destination &office = m_system.printers.first();
    office.instance = u"private"_s;
    office.options = {{u"PrintMode"_s, u"Private"_s}, {u"SecureMark"_s, u"On"_s}};
    Extensions extensions({m_bundle});
    QCOMPARE(print(m_system, extensions, {u"-d"_s, office.name()}), 2);
    QVERIFY2(m_said.contains("the job will not be protected") && m_said.contains("SecureMark"),
             m_said.constData());
    QCOMPARE(print(m_system, extensions, {u"-d"_s, office.name(), u"--set"_s, u"PrintMode=Normal"_s}), 0);
    QCOMPARE(print(m_system, extensions, {u"-d"_s, office.name(), u"--allow-no-password"_s}), 0);
    QVERIFY2(m_said.contains("the job will not be protected"), m_said.constData());
    QCOMPARE(m_system.submitted.size(), 2);
}

void PolicyTest::dialogShowsWhatIsLocked()
{
    const Policy policy = install(R"({"contact": "<b>IT</b>", "queues": ["office", "raw"],
        "rules": [{"locked": {"Duplex": "DuplexNoTumble", "Collate": "False"}, "hiddenOptions": ["MediaType"]}]})");
    m_system.ppds[u"office"_s] += ppdOption("Collate/Collate", {"True", "False"});
    PolicyPrintSystem system(m_system, {}, policy);
    QVERIFY(showsDialog(system, m_none));
    QTRY_VERIFY(find<QComboBox>(u"PageSize"_s));
    find<QSpinBox>()->setValue(2);
    const auto *collate = find<QCheckBox>(u"multiple-document-handling"_s);
    QVERIFY(collate && !collate->isEnabled() && !collate->isChecked());
    QVERIFY2(collate->toolTip().contains(u"Set by the administrator"_s), qPrintable(collate->toolTip()));
    QVERIFY(!find<QComboBox>(u"MediaType"_s));
    auto *box = find<platform::ChoiceBox>(u"Duplex"_s);
    QVERIFY(box);
    QCOMPARE(box->currentData().toString(), u"DuplexNoTumble"_s);
    QVERIFY(!box->isItemEnabled(box->findData(u"None"_s)));
    QVERIFY(shows(u"Set by the administrator (<b>IT</b>)."_s));
    QVERIFY(!m_window->session()->markChoice(u"Duplex"_s, u"None"_s));
}

// A choice that would require changing a locked option is not offered.
void PolicyTest::lockedChoiceIsNotGivenUp()
{
    PolicyPrintSystem system(m_system, {}, install(R"({"rules": [{"locked": {"MediaType": "Thick"}}]})"));
    QVERIFY(showsDialog(system, m_none));
    QTRY_VERIFY(find<platform::ChoiceBox>(u"Duplex"_s));
    auto *duplex = find<platform::ChoiceBox>(u"Duplex"_s);
    duplex->setFocus();
    QTRY_VERIFY(duplex->hasFocus());
    Q_EMIT duplex->greyedPicked(duplex->findData(u"DuplexNoTumble"_s));
    const auto *bar = find<MessageBar>();
    QVERIFY2(bar->text().contains(u"“Paper Type: Heavy Paper” cannot be changed."_s) &&
                 bar->text().contains(u"Set by the administrator."_s) && bar->buttons().size() == 1,
             qPrintable(bar->text()));
    QVERIFY(!bar->text().contains(u"protects"_s));
    bar->buttons().first()->click();
    QCOMPARE(m_window->session()->ppd()->markedChoice(u"MediaType"_s), u"Thick"_s);
    // A question about a conflict keeps the lock as well, and does not call it the user's protection.
    Protection protection;
    protection.choices.insert(u"MediaType"_s, {u"Thick"_s});
    m_window->session()->setProtection(protection);
    QVERIFY(m_window->session()->markChoice(u"Duplex"_s, u"DuplexNoTumble"_s));
    printButton()->click();
    QVERIFY2(bar->text().contains(u"“Paper Type: Heavy Paper” cannot be changed. If you print anyway"_s) &&
                 bar->text().contains(u"Set by the administrator."_s) &&
                 !bar->text().contains(u"protects"_s) && !bar->text().contains(u"Suggestion: Paper Type"_s),
             qPrintable(bar->text()));
}

// The printer's control is disabled on a panel's page; if its choice changes nevertheless, it is reset, and
// the window reports that.
void PolicyTest::panelKeepsWhatIsLocked()
{
    useFamily();
    PolicyPrintSystem system(m_system, {m_bundle}, install(R"({"rules": [
        {"locked": {"PrintMode": "Private"}, "lockedPanels": ["color-settings-2"]}]})"));
    Extensions extensions({m_bundle});
    QVERIFY(showsDialog(system, extensions));
    QTRY_VERIFY(m_window->session());
    DialogSession *session = m_window->session();
    auto *book = find<PageBook>();
    const int mode = session->panels().ofKeyword(u"PrintMode"_s);
    book->turn(mode + 1);
    auto *panel = session->panels().panel(mode)->keyValueObject();
    QCOMPARE(panel->valueForKey(u"PrintMode"_s), u"Private"_s);
    QVERIFY(shows(u"Fixed: "_s));
    const auto *box = find<platform::ChoiceBox>(u"printModePopUp"_s);
    QVERIFY(box && !box->isEnabled());
    QVERIFY2(box->toolTip().contains(u"Set by the administrator."_s), qPrintable(box->toolTip()));
    panel->setValueForKey(u"Normal"_s, u"PrintMode"_s);
    QTRY_COMPARE(panel->valueForKey(u"PrintMode"_s), u"Private"_s);
    QVERIFY(find<MessageBar>()->text().contains(u"Set by the administrator."_s));

    const int colours = session->panels().ofKeyword(u"ColorBalanceCyan"_s);
    book->turn(colours - mode);
    QVERIFY(shows(u"These settings cannot be changed. "_s));
    QVERIFY(!session->panels().panel(colours)->panelView()->isEnabled());
    QVERIFY(!session->markChoice(u"ColorBalanceCyan"_s, u"1"_s));
    printButton()->click(); // without the code, which is asked for
    QVERIFY(find<MessageBar>()->text().contains(u"no password has been given"_s));
    find<MessageBar>()->buttons().first()->click(); // prints without it
    QTRY_VERIFY(shows(u"“Print Mode” has to be “Private”, with a code. Set by the administrator."_s));
    QVERIFY(m_system.submitted.isEmpty());
}

// The row of a hidden option is removed, and its choice remains as set by the policy; a page without rows is
// not shown.
void PolicyTest::panelHidesOptions()
{
    useFamily();
    PolicyPrintSystem system(m_system, {m_bundle}, install(R"({"rules": [{"defaults": {"SharpnessVRN": "2"},
        "hiddenOptions": ["Resolution", "SharpnessVRN", "TonerSave"], "hiddenPanels": ["print-mode"]}]})"));
    Extensions extensions({m_bundle});
    QVERIFY(showsDialog(system, extensions));
    QTRY_VERIFY(m_window->session());
    auto *book = find<PageBook>();
    book->turn(1);
    for (const auto &[name, isShown] :
         {std::pair(u"resolution"_s, false), std::pair(u"resolutionLabel"_s, false),
          std::pair(u"tonerSave"_s, false), std::pair(u"halftone"_s, true)})
        QVERIFY2(find<QWidget>(name)->isVisible() == isShown, qPrintable(name));
    find<QWidget>(u"resolution"_s)->show(); // as a panel might do
    QVERIFY(!find<QWidget>(u"resolution"_s)->isVisible());
    book->turn(1);
    for (const QString &part : {u"Label"_s, u"Slider"_s, u"Value"_s, u"Neutral"_s}) {
        QVERIFY2(!find<QWidget>(u"sharpness"_s + part)->isVisible(), qPrintable(part));
        QVERIFY2(find<QWidget>(u"brightness"_s + part)->isVisible(), qPrintable(part));
    }
    QTest::keyClick(m_window.get(), Qt::Key_F, Qt::ControlModifier);
    auto *bar = find<SearchBar>();
    QVERIFY(bar);
    for (const auto &[word, isFound] : {std::pair(u"SharpnessVRN"_s, false), std::pair(u"PrintMode"_s, false),
                                        std::pair(u"BrightnessVRN"_s, true)}) {
        bar->field()->setText(word);
        QCOMPARE(bar->results()->count() > 0, isFound);
    }
    printButton()->click();
    QTRY_COMPARE(m_system.submitted.size(), 1);
    QCOMPARE(sentValue(m_system.submitted.first().options, u"SharpnessVRN"_s), u"2"_s);
}

QTEST_MAIN(PolicyTest)
#include "policy_test.moc"
