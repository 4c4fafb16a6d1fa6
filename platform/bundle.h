// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/export.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <vector>

class QLocale;
class QPluginLoader;
class QTranslator;

namespace platform {

class PrintDialogExtension;

// A folder with Info.json, the code of a plug-in, layouts and string tables. Opening a bundle reads Info.json
// and loads no code. Shared by the host and the objects of the plug-in. String tables are loaded on first
// use: those of the first of the user's languages that has one, the most specific first ("de_CH" before
// "de"), else English. Each text is looked up separately, so tables may be incomplete.
class KELMAR_PLATFORM_EXPORT Bundle
{
public:
    // Keys of Info.json.
    static const QString identifierKey;     // "CFBundleIdentifier"
    static const QString versionKey;        // "CFBundleVersion"
    static const QString executableKey;     // "CFBundleExecutable", a file name inside the folder
    static const QString principalClassKey; // "PrincipalClass"
    static const QString panelTypeKey;      // "PanelType"
    static const QString printerModelsKey;  // "PrinterModels", a list of wildcards of PPD model names
    // "ProtectingOptions", an object: maps PPD options to lists of the choices that protect the user.
    static const QString protectingOptionsKey;
    // "SecretKeys", a list of objects: "Key", a key of a panel that holds a code; "Options", the PPD options
    // that store it; "UsedWith", an object with the option and choice with which the code is used.
    static const QString secretKeysKey;

    // Opens a bundle. Null with a message that names the file and the problem: there is no folder or
    // Info.json; Info.json is too large, is not valid JSON, or a required key is missing or has the wrong
    // type (the version, the models, and the keys that protect the user are optional); or a file of the
    // folder is owned or writable by a user other than root and the current user, as whom its code would run.
    static std::shared_ptr<Bundle> open(const QString &folder, const QLocale &locale, QString *error);
    ~Bundle();
    Bundle(const Bundle &) = delete;
    Bundle &operator=(const Bundle &) = delete;

    const QString &folder() const { return m_folder; }
    // Null if Info.json lacks the key.
    QVariant infoValueForKey(const QString &key) const;
    // Whether this model name of a PPD matches "PrinterModels".
    bool servesModel(const QString &modelName) const;

    // Full path of layouts/NAME.ui. The file may not exist.
    QString layoutPath(const QString &name) const;

    // Contents of help/LANGUAGE/NAME.md in the first of the user's languages that has the page, else in
    // English. Null if there is no page or it exceeds 64 kB.
    QString helpText(const QString &name) const;

    // The text for `key` from the string tables of the user's language. If they lack it, returns `value`; if
    // that is null or empty, the text of the English table, else the key.
    QString localizedStringForKey(const QString &key, const QString &value = QString()) const;
    // The translation of a text of a layout or of code. `context` is the name of its class. Returns `source`
    // if there is no translation.
    QString translate(const char *context, const char *source, const char *disambiguation = nullptr) const;

    // Loads the code and returns its root component, a `PrintDialogExtension` of the class named in
    // Info.json. Null with a message on failure. The object lives as long as the bundle. Code is never
    // unloaded, since its widgets and transformers may outlive the bundle.
    PrintDialogExtension *principalObject(QString *error);

private:
    Bundle(QString folder, QJsonObject info, const QLocale &locale);
    const std::vector<std::unique_ptr<QTranslator>> &translators() const;

    QString m_folder;
    QJsonObject m_info;
    QStringList m_languages;
    mutable bool m_stringsLoaded = false;
    mutable std::vector<std::unique_ptr<QTranslator>> m_translators; // in look-up order
    mutable std::size_t m_ofUsersLanguage = 0; // number of leading translators in the user's language
    std::unique_ptr<QPluginLoader> m_loader;
};

} // namespace platform
