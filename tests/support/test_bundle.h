// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/bundle.h"

#include <QByteArray>
#include <QJsonObject>
#include <QLocale>
#include <QMap>
#include <QString>
#include <QTemporaryDir>

#include <memory>

// A bundle folder that is removed with the object. Initially it has a complete Info.json for "libTest.so",
// and no layouts, strings or code. A failure to write is fatal (qFatal), since no test can continue without
// its files.
class TestBundle
{
public:
    TestBundle();

    QString folder() const;
    // Changes one key of Info.json; an undefined value removes it.
    void setInfo(const QString &key, const QJsonValue &value);
    // Writes a file of the bundle, and creates its parent folders.
    void writeFile(const QString &path, const QByteArray &contents);
    void copyFile(const QString &from, const QString &path);
    // Designer form layouts/NAME.ui of class NAME: a QWidget "view" with `widgets` (XML of <widget> elements)
    // in a column. `customClasses` are declared as custom widgets that extend QWidget.
    void writeLayout(const QString &name, const QByteArray &widgets, const QStringList &customClasses = {});
    // strings/Test_LANGUAGE.qm with texts of one context.
    void writeStrings(const QString &language, const QString &context, const QMap<QString, QString> &texts);

    // Opens the bundle like the host; fatal if it cannot be opened.
    std::shared_ptr<platform::Bundle> open(const QLocale &locale = QLocale(QLocale::English)) const;

private:
    QTemporaryDir m_dir;
    QJsonObject m_info;
};
