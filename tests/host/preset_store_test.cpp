// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/preset_store.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cups/cups.h>
#include <cups/file.h>
#include <memory>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

using namespace host;
using namespace Qt::StringLiterals;

using Options = QMap<QString, QString>;

class PresetStoreTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void linesOfOthersStayAsTheyAre();
    void valuesComeBackAsTheyWere_data();
    void valuesComeBackAsTheyWere();
    void whatTheFileCannotHoldIsSaid_data();
    void whatTheFileCannotHoldIsSaid();
    void manyWritersLoseNothing();
    void presetsOfAllUsersAreNotChanged();
    void lockIsNotWaitedForWithoutEnd();

private:
    QString path() const { return m_folder->filePath(u"lpoptions"_s); }
    void write(const QByteArray &content)
    {
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    QByteArray content() const
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    PresetStore store() const { return PresetStore({{}, path(), false, 0644}); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void PresetStoreTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void PresetStoreTest::linesOfOthersStayAsTheyAre()
{
    const QByteArray others =
        "# by hand\nDest  attic/draft\tsides=one-sided  'odd'=1\n\nDefault office sides=x\n";
    write(others + "Dest OFFICE/draft a=1\nDest office/draft b=2");
    PrintError error;
    const PresetStore store = this->store();
    QVERIFY(store.save(u"office"_s, {u"draft"_s, {{u"Duplex"_s, u"None"_s}}}, &error));
    QCOMPARE(content(), others + "Dest office/draft Duplex=None\n");
    QVERIFY(store.save(u"office"_s, {u"zwölf"_s, {{u"copies"_s, u"12"_s}}}, &error));
    QVERIFY(store.rename(u"office"_s, u"draft"_s, u"fast"_s, &error));
    QVERIFY(!store.rename(u"office"_s, u"fast"_s, u"ZWÖLF"_s, &error));
    error = {};
    QVERIFY(store.remove(u"office"_s, u"zwölf"_s, &error));
    QCOMPARE(content(), others + "Dest office/fast Duplex=None\n");
    // libcups ignores the case of ASCII letters only.
    write(others + "Dest office/\xc3\x84mt a=1\nDest office/\xc3\xa4mt b=2\nDest office/\xc3\xa4MT c=3\n");
    const QList<Preset> all{{QString(), {{u"sides"_s, u"x"_s}}},
                            {u"Ämt"_s, {{u"a"_s, u"1"_s}}},
                            {u"ämt"_s, {{u"b"_s, u"2"_s}, {u"c"_s, u"3"_s}}}};
    QCOMPARE(*store.list(u"office"_s, &error), all);
    QVERIFY(!store.rename(u"office"_s, u"ämt"_s, u"Ämt"_s, &error)); // one would be lost
    error = {};
    QVERIFY(store.remove(u"office"_s, u"ämt"_s, &error));
    QCOMPARE(content(), others + "Dest office/\xc3\x84mt a=1\n");
    for (const char *name : {"gr\xfcn", "gr\xc3"}) { // in another encoding, and cut off
        const QByteArray line = others + "Dest office/" + name + " a=1\n";
        write(line);
        const auto list = store.list(u"office"_s, &error);
        QVERIFY(list && list->size() == 2);
        QVERIFY(store.rename(u"office"_s, list->last().name, u"rot"_s, &error));
        QCOMPARE(content(), others + "Dest office/rot a=1\n");
        write(line);
        QVERIFY(store.remove(u"office"_s, list->last().name, &error));
        QCOMPARE(content(), others);
    }
    // The queue's own line remains the default.
    QVERIFY(store.save(u"office"_s, {QString(), {{u"Duplex"_s, u"None"_s}}}, &error));
    QVERIFY(content().contains("\nDefault office Duplex=None\n"));
    QVERIFY(!store.remove(u"office"_s, u"draft"_s, &error));
    QVERIFY2(error.message.contains(u"“draft”"_s), qPrintable(error.message));
    const auto mode = [this] {
        struct stat facts = {};
        return ::stat(qPrintable(path()), &facts) == 0 ? facts.st_mode & 0777 : 0;
    };
    QCOMPARE(mode(), 0644U); // unchanged
    QVERIFY(QFile::remove(path()));
    error = {};
    const mode_t mask = ::umask(077);
    QVERIFY(store.save(u"office"_s, {u"own"_s, {{u"Duplex"_s, u"None"_s}}}, &error));
    ::umask(mask);
    QCOMPARE(mode(), 0600U);
}

void PresetStoreTest::valuesComeBackAsTheyWere_data()
{
    QTest::addColumn<QString>("value");
    for (const QString &value :
         {u"plain"_s, u"two words"_s, u"it's \"so\""_s, u"a\\b"_s, u"a#b#c"_s, u"\\#"_s, u"1,2"_s,
          u"é – 紙"_s, u"{a=b c=d}"_s, u"Custom.300x400mm"_s, u"a=b"_s, u"<x>&;$"_s})
        QTest::addRow("%s", qPrintable(value)) << value;
}

void PresetStoreTest::valuesComeBackAsTheyWere()
{
    QFETCH(QString, value);
    const Preset preset{u"p"_s, {{u"first"_s, value}, {u"second"_s, value}}};
    PrintError error;
    QVERIFY2(store().save(u"office"_s, preset, &error), qPrintable(error.message));
    const auto list = store().list(u"office"_s, &error);
    QVERIFY(list);
    QCOMPARE(*list, QList<Preset>{preset});
    // And as libcups parses the line: by its reader of configuration files, then as options.
    char line[8192];
    char *rest = nullptr;
    int number = 0;
    cups_file_t *file = cupsFileOpen(qPrintable(path()), "r");
    QVERIFY(file);
    QVERIFY(cupsFileGetConf(file, line, sizeof line, &rest, &number));
    cupsFileClose(file);
    cups_option_t *options = nullptr;
    const int count = cupsParseOptions(strchr(rest, ' '), 0, &options);
    QCOMPARE(QString::fromUtf8(cupsGetOption("first", count, options)), value);
    QCOMPARE(QString::fromUtf8(cupsGetOption("second", count, options)), value);
    cupsFreeOptions(count, options);
}

void PresetStoreTest::whatTheFileCannotHoldIsSaid_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("words");
    QTest::newRow("no name") << u" "_s << u"1"_s << u"space"_s;
    QTest::newRow("space") << u"two sided"_s << u"1"_s << u"“two-sided”"_s;
    QTest::newRow("slash") << u"a/b"_s << u"1"_s << u"/ \\"_s;
    QTest::newRow("comment") << u"a#b"_s << u"1"_s << u"/ \\"_s;
    QTest::newRow("control") << u"a\x01z"_s << u"1"_s << u"control"_s;
    QTest::newRow("line break") << u"p"_s << u"1\nDest office/q"_s << u"“option”"_s;
    QTest::newRow("tab") << u"p"_s << u"a\tb"_s << u"“option”"_s;
    QTest::newRow("more than a line") << u"p"_s << QString(9000, u'x') << u"option"_s;
}

void PresetStoreTest::whatTheFileCannotHoldIsSaid()
{
    QFETCH(QString, name);
    QFETCH(QString, value);
    QFETCH(QString, words);
    write("Dest office/q a=b\n");
    PrintError error;
    QVERIFY(!store().save(u"office"_s, {name, {{u"option"_s, value}}}, &error));
    QVERIFY2(error.message.contains(words), qPrintable(error.message));
    QCOMPARE(content(), "Dest office/q a=b\n");
}

void PresetStoreTest::manyWritersLoseNothing()
{
    constexpr int writers = 4, presets = 20;
    write("Dest attic/kept a=b\n");
    std::vector<pid_t> children;
    for (int writer = 0; writer < writers; ++writer) {
        const pid_t child = ::fork();
        QVERIFY(child >= 0);
        if (child > 0) {
            children.push_back(child);
            continue;
        }
        bool isGood = true;
        for (int i = 0; i < presets; ++i) {
            PrintError error;
            const QString name = u"w%1-%2"_s.arg(writer).arg(i);
            isGood &= store().save(u"office"_s, {name, {{u"n"_s, QString::number(i)}}}, &error);
        }
        ::_exit(isGood ? 0 : 1);
    }
    for (const pid_t child : children) {
        int status = -1;
        QCOMPARE(::waitpid(child, &status, 0), child);
        QCOMPARE(status, 0);
    }
    PrintError error;
    QCOMPARE(store().list(u"office"_s, &error)->size(), writers * presets);
    QCOMPARE(store().list(u"attic"_s, &error)->size(), 1);
    // the other one is the lock
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden).size(), 2);
}

void PresetStoreTest::presetsOfAllUsersAreNotChanged()
{
    write("Dest office/house a=1 b=1\n");
    const PresetStore store({path(), m_folder->filePath(u"mine/lpoptions"_s), false, 0644});
    PrintError error;
    QVERIFY(store.save(u"office"_s, {u"house"_s, {{u"b"_s, u"2"_s}}}, &error));
    const QList<Preset> both{{u"house"_s, {{u"a"_s, u"1"_s}, {u"b"_s, u"2"_s}}}};
    QCOMPARE(*store.list(u"office"_s, &error), both);
    QVERIFY(store.remove(u"office"_s, u"house"_s, &error));
    QVERIFY(!store.remove(u"office"_s, u"house"_s, &error));
    QCOMPARE(error.kind, PrintError::Kind::NoPermission);
    QCOMPARE(content(), "Dest office/house a=1 b=1\n");
}

void PresetStoreTest::lockIsNotWaitedForWithoutEnd()
{
    write("Dest office/q a=b\n");
    QFile lock(path() + u".kelmar-lock"_s);
    QVERIFY(lock.open(QIODevice::ReadWrite));
    QCOMPARE(::flock(lock.handle(), LOCK_EX), 0); // by a stopped program
    PrintError error;
    QVERIFY(!store().remove(u"office"_s, u"q"_s, &error));
    QVERIFY2(error.message.contains(path()), qPrintable(error.message));
    lock.close();
    error = {};
    QVERIFY(store().remove(u"office"_s, u"q"_s, &error));
}

QTEST_GUILESS_MAIN(PresetStoreTest)
#include "preset_store_test.moc"
