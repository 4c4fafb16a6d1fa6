// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "device/advanced_color_settings.h"

#include "device/network_resolver.h"
#include "device/value_conversion.h"
#include "platform/bundle.h"
#include "platform/print_dialog.h"
#include "platform/printing_manager.h"
#include "platform/text_field.h"

#include <QScopeGuard>

const QString QVRgbSourceProfileIndexKey = QStringLiteral("com.kelmar.pde.advancedcolorsettings.rgb-source");
const QString QVCmykSourceProfileIndexKey =
    QStringLiteral("com.kelmar.pde.advancedcolorsettings.cmyk-source");
const QString QVCmykDestinationProfileIndexKey =
    QStringLiteral("com.kelmar.pde.advancedcolorsettings.cmyk-dest");
const QString QVRenderingIntentKey = QStringLiteral("com.kelmar.pde.advancedcolorsettings.rendering-intent");
const QString QVApplyToDeviceColorOnlyKey =
    QStringLiteral("com.kelmar.pde.advancedcolorsettings.device-color-only");

namespace {

// The device's tables, under the maker's enterprise arc. The last three elements are column, 1, row; rows are
// counted from 1.
using ColumnOid = std::array<SnmpOid, 18>;
constexpr ColumnOid firstRowOf(SnmpOid column)
{
    return {1, 3, 6, 1, 4, 1, 5309, 2, 3, 50, 1, 3, 30, 1, 1, column, 1, 1};
}

constexpr SnmpOid rgbSourceColumn = 2;
constexpr SnmpOid cmykSourceColumn = 3;
constexpr SnmpOid cmykDestinationColumn = 4;
constexpr SnmpOid defaultsColumn = 5;
constexpr quint32 sourceRowCount = 15;
constexpr quint32 destinationRowCount = 63;
constexpr quint32 defaultsRowCount = 4;

QStringList settingsKeys()
{
    return {QVRgbSourceProfileIndexKey, QVCmykSourceProfileIndexKey, QVCmykDestinationProfileIndexKey,
            QVRenderingIntentKey, QVApplyToDeviceColorOnlyKey};
}

QVariantMap valuesOfSettings(PMPrintSettings settings)
{
    QVariantMap values;
    for (const QString &key : settingsKeys()) {
        QVariant value;
        PMPrintSettingsGetValue(settings, key, &value);
        values.insert(key, value);
    }
    return values;
}

#if KELMAR_OLDER_HOSTS
// Null if the session has no ticket or the ticket has no dictionary.
QVariantMap *ticketDictionary(PMPrintSession session)
{
    PMTicketRef ticket = nullptr;
    QVariantMap *dictionary = nullptr;
    if (PMSessionGetTicketFromSession(session, QStringLiteral("PMPrintSettingsTicket"), &ticket) !=
        kPMNoError)
        return nullptr;
    return PMTicketGetPPDDict(ticket, 0, 0, &dictionary) == kPMNoError ? dictionary : nullptr;
}
#endif

QVariantList rowsFromOne(qsizetype count)
{
    QVariantList rows;
    for (qsizetype row = 1; row <= count; ++row)
        rows.append(static_cast<quint32>(row));
    return rows;
}

quint32 numberOf(const QVariant &value)
{
    return static_cast<quint32>(wholeNumber(value));
}

bool readDefaults(QVSNMP_M880 &client, QVAdvancedColorSettingsManager_M880 &settings)
{
    ColumnOid oid = firstRowOf(defaultsColumn);
    const std::optional<QVariantList> values =
        client.sendBulkRequestWithSizeAndCount(oid.data(), oid.size(), defaultsRowCount);
    if (!values)
        return false;
    // A device that returns only some of its defaults has none, since they could not be told apart.
    if (values->size() == defaultsRowCount) {
        settings.setSelectedRgbSourceProfile(numberOf(values->at(0)));
        settings.setSelectedCmykSourceProfile(numberOf(values->at(1)));
        settings.setSelectedCmykDestinationProfile(numberOf(values->at(2)));
        settings.setRenderingIntent(numberOf(values->at(3)));
    }
    return true;
}

void applyStoredValues(const QVariantMap &stored, QVAdvancedColorSettingsManager_M880 &settings)
{
    const auto apply = [&stored](const QString &key, auto &&set) {
        const QVariant value = stored.value(key);
        if (value.isValid())
            set(value);
    };
    apply(QVRgbSourceProfileIndexKey,
          [&settings](const QVariant &v) { settings.setSelectedRgbSourceProfile(numberOf(v)); });
    apply(QVCmykSourceProfileIndexKey,
          [&settings](const QVariant &v) { settings.setSelectedCmykSourceProfile(numberOf(v)); });
    // A stored destination is applied to the CMYK source, and the destination remains the device's default.
    // Jobs have always been restored this way, and presets were saved accordingly.
    apply(QVCmykDestinationProfileIndexKey,
          [&settings](const QVariant &v) { settings.setSelectedCmykSourceProfile(numberOf(v)); });
    apply(QVRenderingIntentKey, [&settings](const QVariant &v) { settings.setRenderingIntent(numberOf(v)); });
    apply(QVApplyToDeviceColorOnlyKey,
          [&settings](const QVariant &v) { settings.setApplyToDeviceColorOnly(booleanValue(v)); });
}

// Empty while disabled.
QVariantMap valuesToSave(const QVAdvancedColorSettingsManager_M880 &settings)
{
    if (!settings.snmpEnabled())
        return {};
    return {{QVRgbSourceProfileIndexKey, QString::number(settings.selectedRgbSourceProfile())},
            {QVCmykSourceProfileIndexKey, QString::number(settings.selectedCmykSourceProfile())},
            {QVCmykDestinationProfileIndexKey, QString::number(settings.selectedCmykDestinationProfile())},
            {QVRenderingIntentKey, QString::number(settings.renderingIntent())},
            {QVApplyToDeviceColorOnlyKey, QString::number(settings.applyToDeviceColorOnly() ? 1 : 0)}};
}

template <typename T>
void assign(platform::KeyValueObject *object, const QString &key, T &field, const T &value)
{
    const platform::KeyChange change(object, key);
    field = value;
}

} // namespace

QVAdvancedColorSettingsManager_M880::QVAdvancedColorSettingsManager_M880(platform::PrintDialogHost *host,
                                                                         const platform::Bundle *bundle,
                                                                         QWidget *view)
    : m_host(host), m_view(view), m_bundle(bundle),
      m_useConstraintHandling(dynamic_cast<platform::ConstraintResolvingHost *>(host) != nullptr),
      m_rgbSourceProfiles{QStringLiteral("rgbSourceProfiles"), {}, {}},
      m_cmykSourceProfiles{QStringLiteral("cmykSourceProfiles"), {}, {}},
      m_cmykDestinationProfiles{QStringLiteral("cmykDestinationProfiles"), {}, {}}
{
    const QMetaObject *cls = &staticMetaObject;
    for (const ProfileList *list :
         {&m_rgbSourceProfiles, &m_cmykSourceProfiles, &m_cmykDestinationProfiles}) {
        const QString rowsKey = list->key.chopped(1) + QStringLiteral("Rows");
        setKeysTriggerChangeNotificationsForDependentKey(cls, {list->key}, rowsKey);
    }
}

void QVAdvancedColorSettingsManager_M880::updateFromSNMP(QObject *)
{
    if (!m_snmpEnabled)
        return;
    const QString cannotConnect = m_bundle->localizedStringForKey(QVSNMPCannotConnect);
    const platform::BlockingWork work(
        m_host,
        m_bundle->localizedStringForKey(QStringLiteral("AskingPrinter"),
                                        QStringLiteral("Asking the printer for its colour profiles…")));
    const QString address = QVNetworkResolver_M880::ipFromPrintSession(m_host->printSession());
    QString error;
    const std::unique_ptr<QVSNMP_M880> client = QVSNMP_M880::initWithHostAndReturnError(address, &error);
    if (!client) {
        setSnmpEnabledWithReason(false, m_bundle->localizedStringForKey(error));
        return;
    }
    const auto closeAtEnd = qScopeGuard([&client] { client->closeSession(); });
    // A failure of one table does not prevent reading the others.
    const auto disableUnless = [&](bool read) {
        if (!read)
            setSnmpEnabledWithReason(false, cannotConnect);
    };
    disableUnless(readProfiles(*client, m_rgbSourceProfiles, rgbSourceColumn, sourceRowCount));
    disableUnless(readProfiles(*client, m_cmykSourceProfiles, cmykSourceColumn, sourceRowCount));
    disableUnless(
        readProfiles(*client, m_cmykDestinationProfiles, cmykDestinationColumn, destinationRowCount));
    disableUnless(readDefaults(*client, *this));
}

bool QVAdvancedColorSettingsManager_M880::readProfiles(QVSNMP_M880 &client, ProfileList &list, SnmpOid column,
                                                       quint32 rowCount)
{
    ColumnOid oid = firstRowOf(column);
    const std::optional<QVariantList> values =
        client.sendBulkRequestWithSizeAndCount(oid.data(), oid.size(), rowCount);
    if (!values)
        return false;
    QStringList names;
    for (const QVariant &value : *values)
        names.append(value.toString());
    QVariantList rows;
    for (const quint32 row : client.rowsOfLastColumn())
        rows.append(row);
    setProfiles(list, names, rows);
    return true;
}

bool QVAdvancedColorSettingsManager_M880::restoreValuesAndReturnError(QString *)
{
    QVariantMap stored;
    if (m_useConstraintHandling) {
        stored = valuesOfSettings(m_host->printSettings());
    } else {
#if KELMAR_OLDER_HOSTS
        const QVariantMap *dictionary = ticketDictionary(m_host->printSession());
        if (dictionary == nullptr)
            return true;
        stored = *dictionary;
#endif
    }
    setSnmpEnabledWithReason(true, {});
    updateFromSNMP();
    // Drops selections that the device does not confirm.
    if (m_snmpEnabled)
        applyStoredValues(stored, *this);
    return true;
}

bool QVAdvancedColorSettingsManager_M880::saveValuesAndReturnError(QString *)
{
    platform::TextField::resignFirstResponder(m_view);
    const QVariantMap values = valuesToSave(*this);
    if (m_useConstraintHandling) {
        for (const QString &key : settingsKeys())
            PMPrintSettingsSetValue(m_host->printSettings(), key, values.value(key), false);
        return true;
    }
#if KELMAR_OLDER_HOSTS
    QVariantMap *dictionary = ticketDictionary(m_host->printSession());
    if (dictionary == nullptr)
        return true;
    for (const QString &key : settingsKeys()) {
        if (values.contains(key))
            dictionary->insert(key, values.value(key));
        else
            dictionary->remove(key);
    }
#endif
    return true;
}

void QVAdvancedColorSettingsManager_M880::setSnmpEnabledWithReason(bool enabled, const QString &reason)
{
    setSnmpEnabled(enabled);
    setSnmpUnavailableReason(enabled ? QString() : reason);
}

void QVAdvancedColorSettingsManager_M880::setProfiles(ProfileList &list, const QStringList &names,
                                                      const QVariantList &rows)
{
    const platform::KeyChange change(this, list.key);
    list.names = names;
    list.rows = rows;
}

void QVAdvancedColorSettingsManager_M880::setUseConstraintHandling(bool on)
{
    assign(this, QStringLiteral("useConstraintHandling"), m_useConstraintHandling, on);
}

void QVAdvancedColorSettingsManager_M880::setApplyToDeviceColorOnly(bool on)
{
    assign(this, QStringLiteral("applyToDeviceColorOnly"), m_applyToDeviceColorOnly, on);
}

void QVAdvancedColorSettingsManager_M880::setRgbSourceProfiles(const QStringList &names)
{
    setProfiles(m_rgbSourceProfiles, names, rowsFromOne(names.size()));
}

void QVAdvancedColorSettingsManager_M880::setCmykSourceProfiles(const QStringList &names)
{
    setProfiles(m_cmykSourceProfiles, names, rowsFromOne(names.size()));
}

void QVAdvancedColorSettingsManager_M880::setCmykDestinationProfiles(const QStringList &names)
{
    setProfiles(m_cmykDestinationProfiles, names, rowsFromOne(names.size()));
}

void QVAdvancedColorSettingsManager_M880::setSelectedRgbSourceProfile(quint32 number)
{
    assign(this, QStringLiteral("selectedRgbSourceProfile"), m_selectedRgbSourceProfile, number);
}

void QVAdvancedColorSettingsManager_M880::setSelectedCmykSourceProfile(quint32 number)
{
    assign(this, QStringLiteral("selectedCmykSourceProfile"), m_selectedCmykSourceProfile, number);
}

void QVAdvancedColorSettingsManager_M880::setSelectedCmykDestinationProfile(quint32 number)
{
    assign(this, QStringLiteral("selectedCmykDestinationProfile"), m_selectedCmykDestinationProfile, number);
}

void QVAdvancedColorSettingsManager_M880::setRenderingIntent(quint32 number)
{
    assign(this, QStringLiteral("renderingIntent"), m_renderingIntent, number);
}

void QVAdvancedColorSettingsManager_M880::setSnmpUnavailableReason(const QString &reason)
{
    assign(this, QStringLiteral("snmpUnavailableReason"), m_snmpUnavailableReason, reason);
}

void QVAdvancedColorSettingsManager_M880::setSnmpEnabled(bool enabled)
{
    assign(this, QStringLiteral("snmpEnabled"), m_snmpEnabled, enabled);
}
