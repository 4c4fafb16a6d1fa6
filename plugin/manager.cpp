// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "plugin/manager.h"

#include "platform/bundle.h"
#include "platform/print_dialog.h"
#include "ppd/ppd_model.h"
#include "ppd/version_info.h"

#include <sys/utsname.h>

#include <utility>

namespace {

QVariant printSetting(platform::PrintDialogHost *host, const QString &key)
{
    QVariant value;
    if (host)
        PMPrintSettingsGetValue(host->printSettings(), key, &value);
    return value;
}

QVariant currentChoice(const QVPPD_M880 *ppd, platform::PrintDialogHost *host, const QString &key)
{
    if (ppd) {
        if (const auto marked = ppd->markedChoiceForOption(key))
            return marked->choice;
        if (const auto standard = ppd->defaultChoiceForOption(key))
            return standard->choice;
    }
    return printSetting(host, key);
}

QVariantMap readChoices(QVPPD_M880 *ppd, platform::PrintDialogHost *host, const QStringList &keys)
{
    const QStringList wanted = keys.isEmpty() && ppd ? ppd->allOptions() : keys;
    QVariantMap result;
    for (const QString &key : wanted) {
        const QVariant choice = currentChoice(ppd, host, key);
        if (choice.isValid())
            result.insert(key, choice);
    }
    return result;
}

void writeChoices(QVPPD_M880 *ppd, platform::PrintDialogHost *host, const QVariantMap &dictionary,
                  const QStringList &keys)
{
    auto *resolver = dynamic_cast<platform::ConstraintResolvingHost *>(host);
    for (const QString &key : keys.isEmpty() ? QStringList(dictionary.keys()) : keys) {
        const QVariant value = dictionary.value(key);
        if (resolver)
            resolver->willChangePPDOptionKeyValuePpdChoice(key, value);
        if (value.typeId() == QMetaType::QString && ppd && ppd->hasOption(key))
            ppd->markChoiceForOption(value, key);
        else if (host)
            PMPrintSettingsSetValue(host->printSettings(), key, value, false);
    }
}

#if KELMAR_OLDER_HOSTS
// The PPD dictionary in the ticket of an older host's session; null if there is none.
QVariantMap *ticketDictionary(platform::PrintDialogHost *host)
{
    PMTicketRef ticket = nullptr;
    QVariantMap *dictionary = nullptr;
    if (host)
        PMSessionGetTicketFromSession(host->printSession(), QStringLiteral("PMPrintSettingsTicket"), &ticket);
    if (ticket)
        PMTicketGetPPDDict(ticket, 0, 0, &dictionary);
    return dictionary;
}

// The entries of a dictionary for some keys, or for all keys if the list is empty, without entries that have
// no value.
QVariantMap presentEntries(const QVariantMap &dictionary, const QStringList &keys)
{
    QVariantMap result;
    for (const QString &key : keys.isEmpty() ? QStringList(dictionary.keys()) : keys) {
        const QVariant value = dictionary.value(key);
        if (value.isValid())
            result.insert(key, value);
    }
    return result;
}

// Without keys the result is null, unlike on newer hosts.
std::optional<QVariantMap> readTicket(platform::PrintDialogHost *host, const QStringList &keys)
{
    const QVariantMap *dictionary = ticketDictionary(host);
    if (!dictionary || keys.isEmpty())
        return std::nullopt;
    return presentEntries(*dictionary, keys);
}

void writeTicket(QVPPD_M880 *ppd, platform::PrintDialogHost *host, const QVariantMap &dictionary,
                 const QStringList &keys)
{
    const QVariantMap copy = presentEntries(dictionary, keys);
    if (QVariantMap *inTicket = ticketDictionary(host))
        inTicket->insert(copy);
    if (!ppd)
        return;
    for (auto entry = copy.begin(); entry != copy.end(); ++entry) {
        if (ppd->hasOption(entry.key()))
            ppd->markChoiceForOption(entry.value(), entry.key());
    }
}
#endif

} // namespace

QVPDEManager_M880::QVPDEManager_M880()
    : m_notificationCenter(std::make_shared<platform::NotificationCenter>())
{
}

QVPDEManager_M880::~QVPDEManager_M880()
{
    m_bundle.reset();
    m_currentModel.clear();
    m_ppd.reset();
    m_notificationCenter.reset();
}

std::shared_ptr<const QVVersionInfo_M880> QVPDEManager_M880::managerVersion()
{
    static const auto version = QVVersionInfo_M880::versionInfoWithString(QStringLiteral("1.01"));
    return version;
}

std::shared_ptr<const QVVersionInfo_M880> QVPDEManager_M880::darwinVersion()
{
    static const auto version = [] {
        utsname system{};
        uname(&system);
        return QVVersionInfo_M880::versionInfoWithString(QString::fromUtf8(system.release));
    }();
    return version;
}

// The setters release the old value after the new one is in place, so that no code sees a partially changed
// manager.

void QVPDEManager_M880::setBundle(std::shared_ptr<platform::Bundle> bundle)
{
    const auto oldBundle = std::exchange(m_bundle, std::move(bundle));
    const QVariant version = m_bundle ? m_bundle->infoValueForKey(platform::Bundle::versionKey) : QVariant();
    m_bundleVersion = QVVersionInfo_M880::versionInfoWithString(version.toString());
}

void QVPDEManager_M880::setHost(platform::PrintDialogHost *host)
{
    m_host = host;
}

void QVPDEManager_M880::setCurrentModel(const QString &model)
{
    m_currentModel = model;
}

void QVPDEManager_M880::setNotificationCenter(std::shared_ptr<platform::NotificationCenter> center)
{
    const auto oldCenter = std::exchange(m_notificationCenter, std::move(center));
}

void QVPDEManager_M880::setPpd(std::shared_ptr<QVPPD_M880> ppd)
{
    const auto oldPpd = std::exchange(m_ppd, std::move(ppd));
}

QString QVPDEManager_M880::localizedStringForKey(const QString &key) const
{
    return m_bundle ? m_bundle->localizedStringForKey(key) : key;
}

std::optional<QVariantMap> QVPDEManager_M880::ppdDictionaryForOptions(const QStringList &keys) const
{
    if (m_useConstraintHandling)
        return readChoices(m_ppd.get(), m_host, keys);
#if KELMAR_OLDER_HOSTS
    return readTicket(m_host, keys);
#else
    return std::nullopt;
#endif
}

void QVPDEManager_M880::setPpdDictionaryForOptions(const QVariantMap &dictionary, const QStringList &keys)
{
    if (m_useConstraintHandling)
        writeChoices(m_ppd.get(), m_host, dictionary, keys);
#if KELMAR_OLDER_HOSTS
    else
        writeTicket(m_ppd.get(), m_host, dictionary, keys);
#endif
}
