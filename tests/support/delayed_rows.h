// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QApplication>
#include <QProcess>
#include <QTest>

// The test rows in which a measured time was somewhat too long. If nothing failed, they are run once more by
// themselves, and fail if a time is too long again: a pause of the machine hardly ever delays the same row
// twice.
class DelayedRows
{
public:
    // Checks the time that something took in the current row. Both times are in milliseconds. Several times
    // the longest one fails at once.
    static void check(qint64 taken, qint64 longest, const char *what)
    {
        constexpr int mostTimes = 5;
        if (taken < longest)
            return;
        const QString text = QStringLiteral("%1: %2 ms").arg(QLatin1String(what)).arg(taken);
        QVERIFY2(s_areRepeated && taken < mostTimes * longest, qPrintable(text));
        qWarning("%s, longer than %lld ms", qPrintable(text), longest);
        s_rows += currentRow();
    }
    // Replaces QTEST_MAIN. Rows that are named in the arguments are not repeated.
    template <typename Test>
    static int exec(int argc, char **argv)
    {
        const QApplication application(argc, argv);
        s_areRepeated = argc == 1;
        Test test; // The second run also needs the files of its private network.
        const int failures = QTest::qExec(&test, argc, argv);
        if (failures != 0 || s_rows.isEmpty())
            return failures;
        s_rows.removeDuplicates();
        qInfo("These rows took too long and are repeated: %s", qPrintable(s_rows.join(u", ")));
        return QProcess::execute(QCoreApplication::applicationFilePath(), s_rows);
    }

private:
    static QString currentRow()
    {
        const QString function = QString::fromLatin1(QTest::currentTestFunction());
        const char *tag = QTest::currentDataTag();
        return tag ? function + u':' + QString::fromUtf8(tag) : function;
    }

    static inline bool s_areRepeated = false;
    static inline QStringList s_rows;
};
