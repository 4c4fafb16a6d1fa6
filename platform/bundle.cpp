// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/bundle.h"

#include "platform/logging.h"
#include "platform/print_dialog.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>
#include <QPluginLoader>
#include <QTranslator>

#include <algorithm>
#include <optional>

#include <cerrno>
#include <fnmatch.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

const QString Bundle::identifierKey = QStringLiteral("CFBundleIdentifier");
const QString Bundle::versionKey = QStringLiteral("CFBundleVersion");
const QString Bundle::executableKey = QStringLiteral("CFBundleExecutable");
const QString Bundle::principalClassKey = QStringLiteral("PrincipalClass");
const QString Bundle::panelTypeKey = QStringLiteral("PanelType");
const QString Bundle::printerModelsKey = QStringLiteral("PrinterModels");
const QString Bundle::protectingOptionsKey = QStringLiteral("ProtectingOptions");
const QString Bundle::secretKeysKey = QStringLiteral("SecretKeys");

namespace {

constexpr qint64 mostInfoBytes = 1024 * 1024;
constexpr qint64 mostHelpBytes = 64 * 1024;

bool isListOfTexts(const QJsonValue &value)
{
    const QJsonArray list = value.toArray();
    return value.isArray() &&
           std::all_of(list.begin(), list.end(), [](const QJsonValue &v) { return v.isString(); });
}

bool isSecret(const QJsonValue &value)
{
    const QJsonObject secret = value.toObject();
    const QJsonObject usedWith = secret.value(QLatin1String("UsedWith")).toObject();
    return secret.value(QLatin1String("Key")).isString() &&
           isListOfTexts(secret.value(QLatin1String("Options"))) && usedWith.size() == 1 &&
           usedWith.begin().value().isString();
}

// The problem in the optional keys of an Info.json; empty if there is none.
QString problemOfOptionalKeys(const QJsonObject &info)
{
    const QJsonValue models = info.value(Bundle::printerModelsKey);
    if (!models.isUndefined() && !isListOfTexts(models))
        return QStringLiteral("\"%1\" is not a list of texts").arg(Bundle::printerModelsKey);
    const QJsonValue protecting = info.value(Bundle::protectingOptionsKey);
    const QJsonObject options = protecting.toObject();
    const bool areChoices = std::all_of(options.begin(), options.end(), isListOfTexts);
    if (!protecting.isUndefined() && (!protecting.isObject() || !areChoices))
        return QStringLiteral("\"%1\" is not an object of lists of texts").arg(Bundle::protectingOptionsKey);
    const QJsonValue secrets = info.value(Bundle::secretKeysKey);
    const QJsonArray list = secrets.toArray();
    if (!secrets.isUndefined() && (!secrets.isArray() || !std::all_of(list.begin(), list.end(), isSecret)))
        return QStringLiteral("\"%1\" is not a list of objects with \"Key\", \"Options\" and \"UsedWith\"")
            .arg(Bundle::secretKeysKey);
    return {};
}

// The problem in the contents of an Info.json; empty if there is none.
QString problemOf(const QJsonObject &info)
{
    for (const QString &key :
         {Bundle::identifierKey, Bundle::executableKey, Bundle::principalClassKey, Bundle::panelTypeKey}) {
        if (!info.contains(key))
            return QStringLiteral("\"%1\" is missing").arg(key);
        if (info.value(key).toString().isEmpty())
            return QStringLiteral("\"%1\" is not a text, or empty").arg(key);
    }
    const QString executable = info.value(Bundle::executableKey).toString();
    if (executable.contains(QLatin1Char('/')) || executable.startsWith(QLatin1Char('.')))
        return QStringLiteral("\"%1\" is \"%2\", which is not the name of a file inside the bundle")
            .arg(Bundle::executableKey, executable);
    return problemOfOptionalKeys(info);
}

// The parent folders of a path. A user with write access to one of them could replace the bundle.
QStringList foldersAbove(const QString &path)
{
    QStringList folders;
    for (QString folder = path; folder != QLatin1String("/");) {
        folder = QFileInfo(folder).path();
        folders.append(folder);
    }
    return folders;
}

// Why the code of a bundle is not trusted: a file in it, or a folder above it, that users other than root and
// the current user could have written. Null if there is none.
QString trustProblem(const QString &folder)
{
    const QStringList parents = foldersAbove(folder) + foldersAbove(QFileInfo(folder).canonicalFilePath());
    QStringList paths = parents + QStringList(folder);
    QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext())
        paths.append(entries.next());
    for (const QString &path : std::as_const(paths)) {
        struct stat status = {};
        if (stat(QFile::encodeName(path).constData(), &status) != 0)
            return QStringLiteral("%1: %2").arg(path, qt_error_string(errno));
        const bool isSticky = parents.contains(path) && (status.st_mode & S_ISVTX) != 0;
        if (!isSticky && (status.st_mode & (S_IWGRP | S_IWOTH)) != 0)
            return QStringLiteral("%1: other users may write to it").arg(path);
        if (status.st_uid != 0 && status.st_uid != geteuid())
            return QStringLiteral("%1: it belongs to another user").arg(path);
    }
    return {};
}

// Reads an Info.json. Null with a message that begins with the file name if it cannot be used.
std::optional<QJsonObject> readInfo(const QString &path, QString *error)
{
    QFile file(path);
    const bool isFile = !QFileInfo::exists(path) || QFileInfo(path).isFile(); // opening a pipe would block
    if (!isFile || !file.open(QIODevice::ReadOnly)) {
        *error =
            QStringLiteral("%1: %2").arg(path, isFile ? file.errorString() : QStringLiteral("not a file"));
        return std::nullopt;
    }
    if (file.size() > mostInfoBytes) {
        *error = QStringLiteral("%1: larger than %2 bytes").arg(path).arg(mostInfoBytes);
        return std::nullopt;
    }
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &parseError);
    if (parseError.error != QJsonParseError::NoError) {
        *error =
            QStringLiteral("%1: %2 at offset %3").arg(path, parseError.errorString()).arg(parseError.offset);
        return std::nullopt;
    }
    const QString problem =
        document.isObject() ? problemOf(document.object()) : QStringLiteral("the document is not an object");
    if (!problem.isEmpty()) {
        *error = QStringLiteral("%1: %2").arg(path, problem);
        return std::nullopt;
    }
    return document.object();
}

// Suffixes of string tables in order of preference: the spellings of each language of the locale from the
// most specific to the language alone, then English.
QStringList tableSuffixes(const QLocale &locale)
{
    QStringList suffixes;
    const auto append = [&suffixes](const QString &suffix) {
        if (!suffix.isEmpty() && !suffixes.contains(suffix))
            suffixes.append(suffix);
    };
    QString language; // of the previous spellings
    const QStringList spellings = locale.uiLanguages();
    for (const QString &spelling : spellings) {
        const QString next = spelling.section(QLatin1Char('-'), 0, 0);
        if (next != language)
            append(language);
        language = next;
        append(QString(spelling).replace(QLatin1Char('-'), QLatin1Char('_')));
    }
    append(language);
    append(QStringLiteral("en"));
    return suffixes;
}

// "OrbM880" for "libOrbM880.so".
QString baseName(const QString &executable)
{
    QString name = executable;
    if (name.startsWith(QLatin1String("lib")))
        name.remove(0, 3);
    return name.left(name.indexOf(QLatin1String(".so")));
}

} // namespace

std::shared_ptr<Bundle> Bundle::open(const QString &folder, const QLocale &locale, QString *error)
{
    QString ignored;
    QString *message = error ? error : &ignored;
    if (!QFileInfo(folder).isDir()) {
        *message = QStringLiteral("%1: there is no such folder").arg(folder);
        return nullptr;
    }
    const QString absolute = QFileInfo(folder).absoluteFilePath();
    if (const QString problem = trustProblem(absolute); !problem.isNull()) {
        *message = problem;
        return nullptr;
    }
    const std::optional<QJsonObject> info = readInfo(absolute + QStringLiteral("/Info.json"), message);
    if (!info)
        return nullptr;
    return std::shared_ptr<Bundle>(new Bundle(absolute, *info, locale));
}

Bundle::Bundle(QString folder, QJsonObject info, const QLocale &locale)
    : m_folder(std::move(folder)), m_info(std::move(info)), m_languages(tableSuffixes(locale))
{
}

Bundle::~Bundle() = default;

QVariant Bundle::infoValueForKey(const QString &key) const
{
    return m_info.value(key).toVariant();
}

bool Bundle::servesModel(const QString &modelName) const
{
    // Not QRegularExpression's wildcards: their "*" stops at a "/", which model names contain.
    const QByteArray name = modelName.toUtf8();
    const QJsonArray patterns = m_info.value(printerModelsKey).toArray();
    return std::any_of(patterns.begin(), patterns.end(), [&name](const QJsonValue &pattern) {
        return fnmatch(pattern.toString().toUtf8().constData(), name.constData(), FNM_NOESCAPE) == 0;
    });
}

QString Bundle::layoutPath(const QString &name) const
{
    return m_folder + QStringLiteral("/layouts/") + name + QStringLiteral(".ui");
}

QString Bundle::helpText(const QString &name) const
{
    for (const QString &language : m_languages) {
        QFile page(QStringLiteral("%1/help/%2/%3.md").arg(m_folder, language, name));
        if (page.open(QIODevice::ReadOnly) && page.size() <= mostHelpBytes)
            return QString::fromUtf8(page.readAll());
    }
    return {};
}

QString Bundle::localizedStringForKey(const QString &key, const QString &value) const
{
    const QByteArray source = key.toUtf8();
    const auto &tables = translators();
    const std::size_t count = value.isEmpty() ? tables.size() : m_ofUsersLanguage;
    for (std::size_t i = 0; i < count; ++i) {
        QString text = tables[i]->translate("Localizable", source.constData());
        if (!text.isEmpty())
            return text;
    }
    return value.isEmpty() ? key : value;
}

QString Bundle::translate(const char *context, const char *source, const char *disambiguation) const
{
    for (const auto &translator : translators()) {
        QString text = translator->translate(context, source, disambiguation);
        if (!text.isEmpty())
            return text;
    }
    return QString::fromUtf8(source);
}

const std::vector<std::unique_ptr<QTranslator>> &Bundle::translators() const
{
    if (m_stringsLoaded)
        return m_translators;
    m_stringsLoaded = true;
    const QString prefix = m_folder + QStringLiteral("/strings/") +
                           baseName(m_info.value(executableKey).toString()) + QLatin1Char('_');
    QString usersLanguage;
    for (const QString &suffix : m_languages) {
        const QString path = prefix + suffix + QStringLiteral(".qm");
        if (!QFileInfo::exists(path))
            continue;
        auto translator = std::make_unique<QTranslator>();
        if (!translator->load(path)) {
            qCWarning(lcPlatform).noquote() << QStringLiteral("%1: not a usable string table").arg(path);
            continue;
        }
        const QString language = suffix.section(QLatin1Char('_'), 0, 0);
        if (m_translators.empty())
            usersLanguage = language;
        m_translators.push_back(std::move(translator));
        if (language == usersLanguage)
            m_ofUsersLanguage = m_translators.size();
    }
    return m_translators;
}

PrintDialogExtension *Bundle::principalObject(QString *error)
{
    const QString path = m_folder + QLatin1Char('/') + m_info.value(executableKey).toString();
    const auto fail = [&](const QString &what) -> PrintDialogExtension * {
        if (error)
            *error = QStringLiteral("%1: %2").arg(path, what);
        return nullptr;
    };
    if (!QFileInfo(path).isFile())
        return fail(QStringLiteral("there is no such file"));
    if (!m_loader) {
        m_loader = std::make_unique<QPluginLoader>(path);
        m_loader->setLoadHints(QLibrary::PreventUnloadHint);
    }
    const QString className = m_loader->metaData().value(QLatin1String("className")).toString();
    if (className.isEmpty())
        return fail(m_loader->errorString());
    const QString principalClass = m_info.value(principalClassKey).toString();
    if (className != principalClass)
        return fail(QStringLiteral("the root component is %1, not %2").arg(className, principalClass));
    QObject *root = m_loader->instance();
    if (!root)
        return fail(m_loader->errorString());
    auto *extension = qobject_cast<PrintDialogExtension *>(root);
    if (!extension)
        return fail(QStringLiteral("%1 is no print-dialog extension").arg(className));
    return extension;
}

} // namespace platform
