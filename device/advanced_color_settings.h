// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "device/snmp_client.h"
#include "platform/key_value_object.h"

#include <QPointer>
#include <QStringList>
#include <QVariantList>
#include <QWidget>

namespace platform {
class Bundle;
class PrintDialogHost;
} // namespace platform

// Keys of the print settings; values are decimal text.
extern const QString QVRgbSourceProfileIndexKey;       // "com.kelmar.pde.advancedcolorsettings.rgb-source"
extern const QString QVCmykSourceProfileIndexKey;      // "....cmyk-source"
extern const QString QVCmykDestinationProfileIndexKey; // "....cmyk-dest"
extern const QString QVRenderingIntentKey;             // "....rendering-intent"
extern const QString QVApplyToDeviceColorOnlyKey;      // "....device-color-only", "1" or "0"

// The colour profiles stored in a printer, the user's selection, and whether the printer could be queried.
// The keys are the properties below. Owned by the panel that shows them; host and bundle are borrowed and
// outlive it. Only restore and updateFromSNMP() query the device; they return when done and notify the host
// before. If the user stops waiting, the result is that of a device that does not respond. Main thread only.
// Each list of names has a list of the device's numbers, to which the selections refer: a profile without a
// name has a number but is not in the lists. An empty list has not been read.
class QVAdvancedColorSettingsManager_M880 : public platform::KeyValueObject
{
    Q_OBJECT
    Q_PROPERTY(
        bool useConstraintHandling READ useConstraintHandling WRITE setUseConstraintHandling STORED false)
    Q_PROPERTY(bool applyToDeviceColorOnly READ applyToDeviceColorOnly WRITE setApplyToDeviceColorOnly)
    Q_PROPERTY(QStringList rgbSourceProfiles READ rgbSourceProfiles WRITE setRgbSourceProfiles STORED false)
    Q_PROPERTY(
        QStringList cmykSourceProfiles READ cmykSourceProfiles WRITE setCmykSourceProfiles STORED false)
    Q_PROPERTY(QStringList cmykDestinationProfiles READ cmykDestinationProfiles WRITE
                   setCmykDestinationProfiles STORED false)
    Q_PROPERTY(QVariantList rgbSourceProfileRows READ rgbSourceProfileRows)
    Q_PROPERTY(QVariantList cmykSourceProfileRows READ cmykSourceProfileRows)
    Q_PROPERTY(QVariantList cmykDestinationProfileRows READ cmykDestinationProfileRows)
    Q_PROPERTY(
        quint32 selectedRgbSourceProfile READ selectedRgbSourceProfile WRITE setSelectedRgbSourceProfile)
    Q_PROPERTY(
        quint32 selectedCmykSourceProfile READ selectedCmykSourceProfile WRITE setSelectedCmykSourceProfile)
    Q_PROPERTY(quint32 selectedCmykDestinationProfile READ selectedCmykDestinationProfile WRITE
                   setSelectedCmykDestinationProfile)
    Q_PROPERTY(quint32 renderingIntent READ renderingIntent WRITE setRenderingIntent)
    Q_PROPERTY(
        QString snmpUnavailableReason READ snmpUnavailableReason WRITE setSnmpUnavailableReason STORED false)
    Q_PROPERTY(bool snmpEnabled READ snmpEnabled WRITE setSnmpEnabled STORED false)
public:
    // Initially enabled, with nothing read. Saving ends text editing in the window of `view` (may be null).
    QVAdvancedColorSettingsManager_M880(platform::PrintDialogHost *host, const platform::Bundle *bundle,
                                        QWidget *view);

    // Reads lists and defaults from the device, unless disabled: to retry after a failure, the caller enables
    // first. A failure disables the settings with a localised reason and keeps what was read before.
    void updateFromSNMP(QObject *sender = nullptr); // the sender is ignored
    // Enables, queries the device, and replaces its defaults by the stored selections. Always returns true.
    bool restoreValuesAndReturnError(QString *error);
    // Ends text editing and writes the selections, or removes them while disabled. Always returns true.
    bool saveValuesAndReturnError(QString *error);
    void setSnmpEnabledWithReason(bool enabled, const QString &reason); // enabling clears the reason
    void willShow() {}

    bool useConstraintHandling() const { return m_useConstraintHandling; }
    void setUseConstraintHandling(bool on);
    bool applyToDeviceColorOnly() const { return m_applyToDeviceColorOnly; }
    void setApplyToDeviceColorOnly(bool on);
    const QStringList &rgbSourceProfiles() const { return m_rgbSourceProfiles.names; }
    const QStringList &cmykSourceProfiles() const { return m_cmykSourceProfiles.names; }
    const QStringList &cmykDestinationProfiles() const { return m_cmykDestinationProfiles.names; }
    // These names are numbered from 1.
    void setRgbSourceProfiles(const QStringList &names);
    void setCmykSourceProfiles(const QStringList &names);
    void setCmykDestinationProfiles(const QStringList &names);
    const QVariantList &rgbSourceProfileRows() const { return m_rgbSourceProfiles.rows; }
    const QVariantList &cmykSourceProfileRows() const { return m_cmykSourceProfiles.rows; }
    const QVariantList &cmykDestinationProfileRows() const { return m_cmykDestinationProfiles.rows; }
    quint32 selectedRgbSourceProfile() const { return m_selectedRgbSourceProfile; }
    void setSelectedRgbSourceProfile(quint32 number);
    quint32 selectedCmykSourceProfile() const { return m_selectedCmykSourceProfile; }
    void setSelectedCmykSourceProfile(quint32 number);
    quint32 selectedCmykDestinationProfile() const { return m_selectedCmykDestinationProfile; }
    void setSelectedCmykDestinationProfile(quint32 number);
    quint32 renderingIntent() const { return m_renderingIntent; }
    void setRenderingIntent(quint32 number);
    const QString &snmpUnavailableReason() const { return m_snmpUnavailableReason; }
    void setSnmpUnavailableReason(const QString &reason);
    bool snmpEnabled() const { return m_snmpEnabled; }
    void setSnmpEnabled(bool enabled);

private:
    struct ProfileList // the names of one column of the device's tables, and the device's number for each
    {
        QString key;
        QStringList names;
        QVariantList rows;
    };

    void setProfiles(ProfileList &list, const QStringList &names, const QVariantList &rows);
    bool readProfiles(QVSNMP_M880 &client, ProfileList &list, SnmpOid column, quint32 rowCount);

    platform::PrintDialogHost *m_host;
    QPointer<QWidget> m_view;
    const platform::Bundle *m_bundle;
    bool m_useConstraintHandling;
    bool m_applyToDeviceColorOnly = false;
    ProfileList m_rgbSourceProfiles, m_cmykSourceProfiles, m_cmykDestinationProfiles;
    quint32 m_selectedRgbSourceProfile = 0, m_selectedCmykSourceProfile = 0,
            m_selectedCmykDestinationProfile = 0;
    quint32 m_renderingIntent = 0;
    QString m_snmpUnavailableReason;
    bool m_snmpEnabled = true;
};
