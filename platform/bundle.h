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

// A folder with Info.json, the code of a plug-in, layouts and string tables. Opening it reads Info.json and
// loads no code. Shared by the host and everything the plug-in makes. Its string tables are loaded on first
// use: those of the first of the user's languages that has one, the most exact spelling first ("de_CH", then
// "de"); English where there is none. Each text is looked up by itself, so a table may lack texts.
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
    // "ProtectingOptions", an object: PPD options, each with a list of the choices that protect the user.
    static const QString protectingOptionsKey;
    // "SecretKeys", a list of objects: "Key", a panel's key that holds a code; "Options", a list of the PPD
    // options that keep it; "UsedWith", an object with the one option and choice with which it is used.
    static const QString secretKeysKey;

    // Null with a message that names the file and what is wrong with it: no folder, no Info.json or a large
    // one, broken JSON, a missing or mistyped required key (all but the version, the models and what protects
    // the user; these are optional, but not mistyped); a folder in which anything belongs to, or can be
    // written by, others than the system and the user, as whom its code would run.
    static std::shared_ptr<Bundle> open(const QString &folder, const QLocale &locale, QString *error);
    ~Bundle();
    Bundle(const Bundle &) = delete;
    Bundle &operator=(const Bundle &) = delete;

    const QString &folder() const { return m_folder; }
    // Null when Info.json lacks the key.
    QVariant infoValueForKey(const QString &key) const;
    // Whether a PPD with this model name is one of "PrinterModels".
    bool servesModel(const QString &modelName) const;

    // Full path of layouts/NAME.ui, whether or not the file exists.
    QString layoutPath(const QString &name) const;

    // Contents of help/LANGUAGE/NAME.md in the first of the user's languages that has the page, else in
    // English; null where there is none. A page beyond 64 kB is none.
    QString helpText(const QString &name) const;

    // The text for `key` in the string tables of the user's language; `value` where they lack it. Where
    // `value` is null or empty, the text of the English table, then the key itself.
    QString localizedStringForKey(const QString &key, const QString &value = QString()) const;
    // A text of a layout or of code, by the class (context) it stands in; `source` where there is no
    // translation.
    QString translate(const char *context, const char *source, const char *disambiguation = nullptr) const;

    // Loads the code and gives its root component, which must be a `PrintDialogExtension` of the class that
    // Info.json names. Null with a message otherwise. The object lives as long as the bundle; code is never
    // unloaded, since widgets and transformers made by it may outlive the bundle.
    PrintDialogExtension *principalObject(QString *error);

private:
    Bundle(QString folder, QJsonObject info, const QLocale &locale);
    const std::vector<std::unique_ptr<QTranslator>> &translators() const;

    QString m_folder;
    QJsonObject m_info;
    QStringList m_languages;
    mutable bool m_stringsLoaded = false;
    mutable std::vector<std::unique_ptr<QTranslator>> m_translators; // in the order of looking up
    mutable std::size_t m_ofUsersLanguage = 0;                       // how many of them, from the first
    std::unique_ptr<QPluginLoader> m_loader;
};

} // namespace platform
