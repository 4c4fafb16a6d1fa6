// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/paths.h"
#include "tests/support/private_cupsd.h"

#include <QTest>

#include <cups/cups.h>

using namespace Qt::StringLiterals;

namespace {

const QString ppd = buildPath("/ppds/kelm880.ppd");
const QByteArray document = sourcePath("/demo/report.ps").toUtf8();

// The number of the job, 0 if the server rejected it.
int print(const char *queue, const QMap<QByteArray, QByteArray> &options = {})
{
    cups_option_t *list = nullptr;
    int count = 0;
    for (auto it = options.cbegin(); it != options.cend(); ++it)
        count = cupsAddOption(it.key().constData(), it.value().constData(), count, &list);
    const int id = cupsPrintFile(queue, document.constData(), "two pages", count, list);
    cupsFreeOptions(count, list);
    return id;
}

} // namespace

class PrivateCupsdTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void optionsArriveAsChosen();
    void anyDeviceUriIsCaptured();
    void queuesOutliveARestart();

private:
    PrivateCupsd m_server;
};

void PrivateCupsdTest::initTestCase()
{
    if (const QString missing = PrivateCupsd::missing(); !missing.isEmpty())
        QSKIP(qPrintable(missing));
    QVERIFY2(m_server.start(), qPrintable(m_server.problem()));
    QVERIFY2(m_server.addQueue(u"office"_s, ppd), qPrintable(m_server.problem()));
    QVERIFY2(m_server.addQueue(u"other"_s, {}, u"socket://127.0.0.42:9100"_s),
             qPrintable(m_server.problem()));
}

void PrivateCupsdTest::optionsArriveAsChosen()
{
    const int id = print("office", {{"PrintMode", "Private"},
                                    {"DINDigit1", "1"},
                                    {"DeptCode", "True"},
                                    {"BlankPage", "False"},
                                    {"Duplex", "DuplexTumble"},
                                    {"com.kelmar.pde.advancedcolorsettings.rgb-source", "3"},
                                    {"note", "it's"}});
    QVERIFY2(id > 0, cupsLastErrorString());
    const auto job = m_server.waitForJob(id);
    QVERIFY(job);
    QCOMPARE(job->title, u"two pages"_s);
    QCOMPARE(job->copies, 1);
    QCOMPARE(job->deviceUri, u"capture:/"_s);
    QCOMPARE(job->options.value(u"PrintMode"_s), u"Private"_s);
    QCOMPARE(job->options.value(u"DINDigit1"_s), u"1"_s);
    QCOMPARE(job->options.value(u"DeptCode"_s), u"true"_s);
    QCOMPARE(job->options.value(u"BlankPage"_s), u"false"_s);
    QCOMPARE(job->options.value(u"com.kelmar.pde.advancedcolorsettings.rgb-source"_s), u"3"_s);
    QCOMPARE(job->options.value(u"note"_s), u"it's"_s);
    // The filters wrote the PPD's code for the selected choices and for the defaults.
    for (const char *code :
         {"<</KelmarPrintMode/Private>>kelmarset", "<</KelmarPasswordDigit1 1>>kelmarset",
          "<</KelmarDepartmentCode true>>kelmarset", "<</Duplex true/Tumble true>>setpagedevice",
          "<</KelmarColorMode/Auto>>kelmarset", "userdict/kelmarset{"})
        QVERIFY2(job->data.contains(code), code);
}

void PrivateCupsdTest::anyDeviceUriIsCaptured()
{
    const int id = print("other", {{"ColorType", "Mono"}});
    QVERIFY2(id > 0, cupsLastErrorString());
    const auto job = m_server.waitForNextJob();
    QVERIFY(job);
    QCOMPARE(job->id, id);
    QCOMPARE(job->deviceUri, u"socket://127.0.0.42:9100"_s);
    QVERIFY(job->data.startsWith("%!PS-Adobe-3.0"));
    QVERIFY(!m_server.waitForNextJob(1));
}

void PrivateCupsdTest::queuesOutliveARestart()
{
    QVERIFY2(m_server.setPaused(u"office"_s, true), qPrintable(m_server.problem()));
    const int kept = print("office");
    QVERIFY(kept > 0);
    m_server.stop();
    QVERIFY(!m_server.isRunning());
    QCOMPARE(print("office"), 0);
    QVERIFY2(m_server.start(), qPrintable(m_server.problem()));
    QVERIFY(!m_server.capturedJobs().contains(kept));
    QVERIFY2(m_server.setPaused(u"office"_s, false), qPrintable(m_server.problem()));
    QVERIFY(m_server.waitForJob(kept));
    QVERIFY(!m_server.addQueue(u"bad"_s, u"/no/such.ppd"_s));
    QVERIFY(m_server.problem().contains(u"/no/such.ppd"_s));
}

QTEST_GUILESS_MAIN(PrivateCupsdTest)
#include "private_cupsd_test.moc"
