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

// A bundle folder of its own that goes with the object. It begins with a complete Info.json of "libTest.so"
// and with no layouts, strings or code. Writing fails loudly (qFatal), as no test can go on without its
// files.
class TestBundle
{
public:
    TestBundle();

    QString folder() const;
    // Changes one key of Info.json; an undefined value removes it.
    void setInfo(const QString &key, const QJsonValue &value);
    // A file of the bundle, with the folders on the way to it.
    void writeFile(const QString &path, const QByteArray &contents);
    void copyFile(const QString &from, const QString &path);
    // Designer form layouts/NAME.ui of class NAME: a QWidget "view" with `widgets` (XML of <widget> elements)
    // in a column. `customClasses` are declared as custom widgets that extend QWidget.
    void writeLayout(const QString &name, const QByteArray &widgets, const QStringList &customClasses = {});
    // strings/Test_LANGUAGE.qm with texts of one context.
    void writeStrings(const QString &language, const QString &context, const QMap<QString, QString> &texts);

    // The bundle as the host would open it; fatal when it does not open.
    std::shared_ptr<platform::Bundle> open(const QLocale &locale = QLocale(QLocale::English)) const;

private:
    QTemporaryDir m_dir;
    QJsonObject m_info;
};
