// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/notification_center.h"
#include "platform/printing_manager.h"

#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantMap>

#include <memory>
#include <optional>

namespace platform {
class Bundle;
class PrintDialogHost;
} // namespace platform
class QVPPD_M880;
class QVVersionInfo_M880;

// The shared context of one print dialog: PPD, host, bundle, model and the notification center through which
// its panels communicate. Created by the factory and shared by the panels; lives as long as any of them. The
// host is borrowed and outlives it. Main thread only.
class QVPDEManager_M880
{
public:
    QVPDEManager_M880();
    ~QVPDEManager_M880();
    QVPDEManager_M880(const QVPDEManager_M880 &) = delete;
    QVPDEManager_M880 &operator=(const QVPDEManager_M880 &) = delete;

    // "1.01".
    static std::shared_ptr<const QVVersionInfo_M880> managerVersion();
    // The release of the running kernel. Null if it is not a valid version.
    static std::shared_ptr<const QVVersionInfo_M880> darwinVersion();

    const std::shared_ptr<platform::Bundle> &bundle() const { return m_bundle; }
    // Also reads the version of the bundle.
    void setBundle(std::shared_ptr<platform::Bundle> bundle);
    // Null if the bundle has no valid version.
    const std::shared_ptr<const QVVersionInfo_M880> &bundleVersion() const { return m_bundleVersion; }
    platform::PrintDialogHost *host() const { return m_host; }
    void setHost(platform::PrintDialogHost *host);
    const QString &currentModel() const { return m_currentModel; }
    void setCurrentModel(const QString &model);
    const std::shared_ptr<platform::NotificationCenter> &notificationCenter() const
    {
        return m_notificationCenter;
    }
    void setNotificationCenter(std::shared_ptr<platform::NotificationCenter> center);
    // Null for a printer without a PPD.
    const std::shared_ptr<QVPPD_M880> &ppd() const { return m_ppd; }
    void setPpd(std::shared_ptr<QVPPD_M880> ppd);
    bool useConstraintHandling() const { return m_useConstraintHandling; }
    void setUseConstraintHandling(bool on) { m_useConstraintHandling = on; }

    // The text in the bundle's default string table, or the key if there is none.
    QString localizedStringForKey(const QString &key) const;

    // The choice of each keyword: the marked one, else the default, else the one in the print settings.
    // Keywords without a choice are left out. An empty list means all options of the PPD. Null if the host
    // takes no part in constraint resolution. Builds for older hosts read the session's ticket instead, and
    // return null for an empty list.
    std::optional<QVariantMap> ppdDictionaryForOptions(const QStringList &keys) const;
    // Notifies the host of each keyword, then marks the choice in the PPD, or writes the print settings if
    // the value is not a string or the PPD has no such option. An empty list means all keys of the
    // dictionary.
    void setPpdDictionaryForOptions(const QVariantMap &dictionary, const QStringList &keys);

private:
    platform::PrintDialogHost *m_host = nullptr;
    bool m_useConstraintHandling = false;
    QString m_currentModel;
    std::shared_ptr<platform::Bundle> m_bundle;
    std::shared_ptr<platform::NotificationCenter> m_notificationCenter;
    std::shared_ptr<const QVVersionInfo_M880> m_bundleVersion;
    std::shared_ptr<QVPPD_M880> m_ppd;
};
