// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/test_bundle.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>

using platform::Bundle;

TestBundle::TestBundle()
    : m_info{{Bundle::identifierKey, QStringLiteral("com.kelmar.print.Test")},
             {Bundle::versionKey, QStringLiteral("1.0")},
             {Bundle::executableKey, QStringLiteral("libTest.so")},
             {Bundle::principalClassKey, QStringLiteral("StubExtension")},
             {Bundle::panelTypeKey, QStringLiteral("test-panels")},
             {Bundle::printerModelsKey, QJsonArray{QStringLiteral("KELMAR Orb*")}}}
{
    writeFile(QStringLiteral("Info.json"), QJsonDocument(m_info).toJson());
}

QString TestBundle::folder() const
{
    return m_dir.filePath(QStringLiteral("Test.bundle"));
}

void TestBundle::setInfo(const QString &key, const QJsonValue &value)
{
    m_info.insert(key, value); // an undefined value removes the key
    writeFile(QStringLiteral("Info.json"), QJsonDocument(m_info).toJson());
}

void TestBundle::writeFile(const QString &path, const QByteArray &contents)
{
    const QString fullPath = folder() + QLatin1Char('/') + path;
    QFile file(fullPath);
    if (!QDir().mkpath(QFileInfo(fullPath).path()) || !file.open(QIODevice::WriteOnly) ||
        file.write(contents) != contents.size())
        qFatal("cannot write %s", qUtf8Printable(fullPath));
}

void TestBundle::copyFile(const QString &from, const QString &path)
{
    QFile file(from);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qUtf8Printable(from));
    writeFile(path, file.readAll());
}

void TestBundle::writeLayout(const QString &name, const QByteArray &widgets, const QStringList &customClasses)
{
    QByteArray form =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ui version=\"4.0\">\n<class>" + name.toUtf8() +
        "</class>\n<widget class=\"QWidget\" name=\"view\"><layout class=\"QVBoxLayout\" name=\"column\">\n";
    form += "<item>" + QByteArray(widgets).replace("</widget>\n<widget", "</widget></item>\n<item><widget") +
            "</item>";
    form += "\n</layout></widget>\n<customwidgets>";
    for (const QString &cls : customClasses)
        form += "<customwidget><class>" + cls.toUtf8() + "</class><extends>QWidget</extends></customwidget>";
    form += "</customwidgets>\n</ui>\n";
    writeFile(QStringLiteral("layouts/%1.ui").arg(name), form);
}

void TestBundle::writeStrings(const QString &language, const QString &context,
                              const QMap<QString, QString> &texts)
{
    QString table =
        QStringLiteral("<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<TS version=\"2.1\" language=\"%1\">"
                       "<context><name>%2</name>")
            .arg(language, context);
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        table += QStringLiteral("<message><source>%1</source><translation>%2</translation></message>")
                     .arg(text.key().toHtmlEscaped(), text.value().toHtmlEscaped());
    }
    const QString source = QStringLiteral("strings/Test_%1.ts").arg(language);
    writeFile(source, (table + QStringLiteral("</context></TS>")).toUtf8());
    if (QProcess::execute(QStringLiteral(KELMAR_LRELEASE),
                          {QStringLiteral("-silent"), folder() + QLatin1Char('/') + source}) != 0)
        qFatal("lrelease failed");
}

std::shared_ptr<Bundle> TestBundle::open(const QLocale &locale) const
{
    QString error;
    std::shared_ptr<Bundle> bundle = Bundle::open(folder(), locale, &error);
    if (!bundle)
        qFatal("%s", qUtf8Printable(error));
    return bundle;
}
