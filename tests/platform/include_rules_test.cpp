// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QLibraryInfo>
#include <QRegularExpression>
#include <QTest>

namespace {

// Which folders the files of a folder may include from.
const QMap<QString, QStringList> &allowedRooms()
{
    static const QMap<QString, QStringList> rooms = [] {
        const auto list = [](const char *names) {
            return QString::fromLatin1(names).split(QLatin1Char(' '));
        };
        return QMap<QString, QStringList>{
            {QStringLiteral("platform"), list("platform")},
            {QStringLiteral("ppd"), list("ppd platform")},
            {QStringLiteral("plugin"), list("plugin ppd platform")},
            {QStringLiteral("panelkit"), list("panelkit plugin ppd platform")},
            {QStringLiteral("device"), list("device platform")},
            {QStringLiteral("panels"), list("panels panelkit plugin ppd device platform")},
            {QStringLiteral("host"), list("host platform")},
        };
    }();
    return rooms;
}

QString roomOf(const QString &path)
{
    return path.section(QLatin1Char('/'), 0, 0);
}

// "print_mode_panel" for "panels/print_mode_panel.h", nil for other files.
QString panelOf(const QString &path)
{
    static const QRegularExpression panel(QStringLiteral("^panels/(\\w+_panel)\\.(h|cpp)$"));
    return panel.match(path).captured(1);
}

bool isWidgetHeader(const QString &header)
{
    const QString file = header.section(QLatin1Char('/'), -1);
    const QString folder = QLibraryInfo::path(QLibraryInfo::HeadersPath) + QStringLiteral("/QtWidgets/");
    return header.startsWith(QLatin1String("QtWidgets")) || QFile::exists(folder + file);
}

bool mayUseWidgets(const QString &file, const QString &header)
{
    if (roomOf(file) == QLatin1String("device"))
        return header == QLatin1String("QWidget"); // whose window ends its text editing
    return roomOf(file) != QLatin1String("ppd") && !file.startsWith(QLatin1String("host/core/"));
}

// Why `file` must not include `header`; empty when it may. Both are paths below the source folder.
QString violation(const QString &file, const QString &header)
{
    if (header == QLatin1String("cups/ppd.h") && roomOf(file) != QLatin1String("ppd") &&
        !file.startsWith(QLatin1String("host/core/")))
        return QStringLiteral("the PPD interface of libcups is used by ppd/ and one file of host/core/");
    if (isWidgetHeader(header) && !mayUseWidgets(file, header))
        return QStringLiteral("there are no widgets here");
    if (roomOf(file) == QLatin1String("ppd") && header == QLatin1String("plugin/version_info.h"))
        return {};
    const QString room = roomOf(header);
    const bool isOurs = allowedRooms().contains(room) || room == QLatin1String("tests") ||
                        room == QLatin1String("simulator") || room == QLatin1String("bench");
    if (isOurs && !allowedRooms().value(roomOf(file)).contains(room))
        return QStringLiteral("%1/ must not know %2/").arg(roomOf(file), room);
    if (!panelOf(header).isNull() && panelOf(header) != panelOf(file))
        return QStringLiteral("only a panel's own source includes it");
    return {};
}

struct Include
{
    QString file;
    int line;
    QString header;
};

QList<Include> includesOf(const QString &file)
{
    static const QRegularExpression pattern(QStringLiteral("^\\s*#\\s*include\\s*[<\"]([^>\"]+)[>\"]"));
    QFile source(QStringLiteral(KELMAR_SOURCE_DIR "/") + file);
    if (!source.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qUtf8Printable(file));
    QList<Include> includes;
    for (int line = 1; !source.atEnd(); ++line) {
        const auto match = pattern.match(QString::fromUtf8(source.readLine()));
        if (match.hasMatch())
            includes.append({file, line, match.captured(1)});
    }
    return includes;
}

// Every include of the sources of one room.
QList<Include> includesOfRoom(const QString &room)
{
    const QString root = QStringLiteral(KELMAR_SOURCE_DIR "/");
    QList<Include> includes;
    QDirIterator files(root + room, {QStringLiteral("*.h"), QStringLiteral("*.cpp"), QStringLiteral("*.c")},
                       QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        includes += includesOf(files.next().mid(root.size()));
    return includes;
}

} // namespace

class IncludeRulesTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void rules_data();
    void rules();
    void sourcesKeepTheRules_data();
    void sourcesKeepTheRules();
    void hostHasOneDoorToPpds();
};

void IncludeRulesTest::rules_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("header");
    QTest::addColumn<bool>("allowed");
    const auto row = [](const char *file, const char *header, bool allowed) {
        QTest::addRow("%s includes %s", file, header) << file << header << allowed;
    };
    row("panels/print_mode_panel.cpp", "panels/print_mode_panel.h", true);
    row("panels/print_mode_panel.cpp", "panels/color_settings_1_panel.h", false);
    row("panels/color_settings_2_panel.cpp", "panels/view_utilities.h", true);
    row("panels/color_settings_1_panel.h", "device/advanced_color_settings.h", true);
    row("plugin/factory.cpp", "panels/print_mode_panel.h", false);
    row("plugin/manager.cpp", "panelkit/panel_base.h", false);
    row("ppd/ppd_model.cpp", "plugin/version_info.h", true);
    row("ppd/ppd_model.cpp", "plugin/manager.h", false);
    row("ppd/ppd_model.cpp", "QComboBox", false);
    row("ppd/ppd_model.cpp", "cups/ppd.h", true);
    row("panelkit/panel_base.cpp", "cups/ppd.h", false);
    row("host/window/print_window.cpp", "cups/ppd.h", false);
    row("host/window/print_window.cpp", "QtWidgets/QDialog", true);
    row("host/core/session.cpp", "QtWidgets/QDialog", false);
    row("host/core/session.cpp", "ppd/ppd_model.h", false);
    row("platform/bundle.cpp", "plugin/factory.h", false);
    row("platform/bundle.cpp", "tests/support/test_bundle.h", false);
    row("device/snmp_client.cpp", "plugin/manager.h", false);
    row("device/advanced_color_settings.cpp", "QWidget", true);
    row("device/advanced_color_settings.cpp", "QLabel", false);
    row("device/snmp_client.cpp", "net-snmp/net-snmp-config.h", true);
}

void IncludeRulesTest::rules()
{
    QFETCH(QString, file);
    QFETCH(QString, header);
    QTEST(violation(file, header).isEmpty(), "allowed");
}

void IncludeRulesTest::sourcesKeepTheRules_data()
{
    QTest::addColumn<QString>("room");
    for (const QString &room : allowedRooms().keys()) {
        if (QDir(QStringLiteral(KELMAR_SOURCE_DIR "/") + room).exists())
            QTest::newRow(qPrintable(room)) << room;
    }
}

void IncludeRulesTest::sourcesKeepTheRules()
{
    QFETCH(QString, room);
    const QList<Include> includes = includesOfRoom(room);
    QVERIFY2(!includes.isEmpty(), "no sources found");
    QStringList faults;
    for (const Include &include : includes) {
        const QString reason = violation(include.file, include.header);
        if (!reason.isEmpty())
            faults.append(QStringLiteral("%1:%2: %3: %4")
                              .arg(include.file)
                              .arg(include.line)
                              .arg(include.header, reason));
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

void IncludeRulesTest::hostHasOneDoorToPpds()
{
    QStringList doors;
    for (const Include &include : includesOfRoom(QStringLiteral("host"))) {
        if (include.header == QLatin1String("cups/ppd.h"))
            doors.append(QStringLiteral("%1:%2").arg(include.file).arg(include.line));
    }
    QVERIFY2(doors.size() <= 1, qPrintable(doors.join(QLatin1Char('\n'))));
}

QTEST_GUILESS_MAIN(IncludeRulesTest)
#include "include_rules_test.moc"
