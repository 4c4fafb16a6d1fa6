// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "device/snmp_client.h"

#include "device/network_resolver.h"
#include "device/scoped_environment.h"
#include "device/snmp_library.h"
#include "device/snmp_value.h"
#include "device/string_encoding.h"
#include "device/value_conversion.h"

const QString QVSNMPUnknownError = QStringLiteral("SNMPUnknownError");
const QString QVSNMPCannotConnect = QStringLiteral("SNMPCannotConnect");
const QString QVSNMPArchitectureMismatch = QStringLiteral("SNMPArchMismatch");

static_assert(std::is_same_v<SnmpOid, oid>);

namespace {

constexpr int retries = 2;
constexpr long timeoutMicroseconds = 1'000'000;

// Printer MIB (RFC 3805), of device 1.
constexpr std::array<SnmpOid, 12> prtGeneralCurrentLocalization{1, 3, 6, 1, 2, 1, 43, 5, 1, 1, 2, 1};
constexpr std::array<SnmpOid, 13> prtLocalizationCharacterSet{1, 3, 6, 1, 2, 1, 43, 7, 1, 1, 4, 1, 0};

// Null when net-snmp cannot open one.
void *openSession(const QString &address)
{
    const SnmpLibrary &library = SnmpLibrary::instance();
    {
        // The first call reads configuration and MIB files. All OIDs here are numbers, so no MIB is needed,
        // and a machine without them gets no warnings; nor are folders made for certificates that v2c does
        // not use.
        const ScopedEnvironment quiet{{"MIBS", ""}, {"MIBDIRS", ""}, {"SNMP_PERSISTENT_DIR", "/dev/null"}};
        library.tap_init_snmp("KelmarPDE");
    }
    // A bare IPv6 address, with or without a scope id, is taken as it stands.
    QByteArray peername = address.toUtf8();
    QByteArray community = QByteArrayLiteral("public");
    netsnmp_session session{};
    library.tap_snmp_sess_init(&session);
    session.peername = peername.data();
    session.version = SNMP_VERSION_2c;
    session.retries = retries;
    session.timeout = timeoutMicroseconds;
    session.community = reinterpret_cast<unsigned char *>(community.data());
    session.community_len = static_cast<size_t>(community.size());
    return library.tap_snmp_sess_open(&session);
}

} // namespace

bool QVSNMP_M880::loadLibrary()
{
    return SnmpLibrary::instance().load();
}

void QVSNMP_M880::unloadLibrary()
{
    SnmpLibrary::instance().unload();
}

void QVSNMP_M880::setLibraryNames(const QList<QByteArray> &names)
{
    SnmpLibrary::instance().names = names;
}

QVSNMP_M880::LibraryState QVSNMP_M880::libraryState()
{
    const SnmpLibrary &library = SnmpLibrary::instance();
#define KELMAR_SLOT_VALUE(name) reinterpret_cast<quintptr>(library.tap_##name),
    return {
        library.libraryLoaded, library.snmpLibrary != nullptr, {KELMAR_SNMP_ENTRY_POINTS(KELMAR_SLOT_VALUE)}};
#undef KELMAR_SLOT_VALUE
}

std::unique_ptr<QVSNMP_M880> QVSNMP_M880::initWithHostAndReturnError(const QString &host, QString *error)
{
    const auto fail = [error](const QString &identifier) {
        if (error != nullptr)
            *error = identifier;
        return nullptr;
    };
    // The count vouches for no more than an earlier attempt, hence the second look.
    if (!loadLibrary() || !SnmpLibrary::instance().isUsable())
        return fail(QVSNMPArchitectureMismatch);
    const QString address = QVNetworkResolver_M880::resolveToIP(host);
    if (address.isNull())
        return fail(QVSNMPCannotConnect);
    void *session = openSession(address);
    if (session == nullptr)
        return fail(QVSNMPArchitectureMismatch);
    return std::unique_ptr<QVSNMP_M880>(new QVSNMP_M880(session));
}

QVSNMP_M880::QVSNMP_M880(void *session) : m_theSession(session), m_charSet(NSASCIIStringEncoding) {}

QVSNMP_M880::~QVSNMP_M880()
{
    unloadLibrary();
}

void QVSNMP_M880::closeSession()
{
    if (m_theSession != nullptr)
        SnmpLibrary::instance().tap_snmp_sess_close(m_theSession);
}

qint32 QVSNMP_M880::lastError() const
{
    const SnmpLibrary &library = SnmpLibrary::instance();
    const netsnmp_session *session = m_theSession == nullptr || library.libraryLoaded == 0
                                         ? nullptr
                                         : library.tap_snmp_sess_session(m_theSession);
    return session == nullptr ? m_lastError : session->s_errno;
}

QVariant QVSNMP_M880::sendRequestWithSize(const SnmpOid *oid, size_t size)
{
    const SnmpLibrary &library = SnmpLibrary::instance();
    if (m_theSession == nullptr || library.libraryLoaded == 0)
        return {};
    netsnmp_pdu *request = library.tap_snmp_pdu_create(SNMP_MSG_GET);
    if (request == nullptr)
        return {};
    library.tap_snmp_add_null_var(request, oid, size);
    netsnmp_pdu *answer = nullptr;
    const int status = library.tap_snmp_sess_synch_response(m_theSession, request, &answer);
    const SnmpPduHandle response(answer);
    if (status != STAT_SUCCESS || !response || response->errstat != SNMP_ERR_NOERROR)
        return {};
    QVariant value;
    for (const netsnmp_variable_list *variable = response->variables; variable != nullptr;
         variable = variable->next_variable)
        value = valueOfVariable(*variable, m_charSet, m_returnStringsAsData);
    return value;
}

std::optional<QVariantList> QVSNMP_M880::sendBulkRequestWithSizeAndCount(SnmpOid *oid, size_t size,
                                                                         quint32 count)
{
    m_rowsOfLastColumn.clear();
    if (size == 0)
        return std::nullopt;
    QVariantList values;
    values.reserve(count);
    for (quint32 i = 0; i < count; ++i) {
        const QVariant value = sendRequestWithSize(oid, size);
        if (!value.isValid())
            break;
        const bool isEmptyString = value.typeId() == QMetaType::QString && value.toString().isEmpty();
        if (!isEmptyString) {
            values.append(value);
            m_rowsOfLastColumn.append(static_cast<quint32>(oid[size - 1]));
        }
        ++oid[size - 1];
    }
    return values.isEmpty() ? std::nullopt : std::optional(values);
}

void QVSNMP_M880::determineDefaultCharsetForPrinter()
{
    const QVariant localization =
        sendRequestWithSize(prtGeneralCurrentLocalization.data(), prtGeneralCurrentLocalization.size());
    if (!localization.isValid())
        return;
    auto oid = prtLocalizationCharacterSet;
    oid.back() = static_cast<quint32>(wholeNumber(localization));
    const QVariant characterSet = sendRequestWithSize(oid.data(), oid.size());
    if (characterSet.isValid())
        m_charSet = stringEncodingForCharacterSet(wholeNumber(characterSet));
}
