// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "device/snmp_client.h"

#include "device/network_resolver.h"
#include "device/snmp_library.h"
#include "device/snmp_value.h"
#include "device/string_encoding.h"
#include "device/value_conversion.h"
#include "platform/background.h"

#include <utility>
#include <vector>

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

// Padding for a net-snmp version with a longer session structure: its additional fields are not read and
// overwrite nothing.
struct RoomySession
{
    netsnmp_session known{};
    std::array<std::byte, 512> beyond{};
};

// Null handle if net-snmp cannot open a session.
std::shared_ptr<SnmpSession> openedSession(const SnmpCalls &calls, const QString &address)
{
    // A bare IPv6 address, with or without a scope ID, is passed unchanged.
    QByteArray peername = address.toUtf8();
    QByteArray community = QByteArrayLiteral("public");
    RoomySession room;
    netsnmp_session &session = room.known;
    calls.tap_snmp_sess_init(&session);
    session.peername = peername.data();
    session.version = SNMP_VERSION_2c;
    session.retries = retries;
    session.timeout = timeoutMicroseconds;
    session.community = reinterpret_cast<unsigned char *>(community.data());
    session.community_len = static_cast<size_t>(community.size());
    return std::make_shared<SnmpSession>(calls, calls.tap_snmp_sess_open(&session));
}

struct Request
{
    std::shared_ptr<SnmpSession> session;
    std::vector<SnmpOid> oid;
    quint32 charSet;
    bool stringsAsData;
};

QVariant answerTo(const Request &asked)
{
    const SnmpCalls &calls = asked.session->calls;
    netsnmp_pdu *request = calls.tap_snmp_pdu_create(SNMP_MSG_GET);
    if (request == nullptr)
        return {};
    calls.tap_snmp_add_null_var(request, asked.oid.data(), asked.oid.size());
    netsnmp_pdu *answer = nullptr;
    const int status = calls.tap_snmp_sess_synch_response(asked.session->handle, request, &answer);
    const SnmpPduHandle response(answer, {calls.tap_snmp_free_pdu});
    if (status != STAT_SUCCESS || !response || response->errstat != SNMP_ERR_NOERROR)
        return {};
    QVariant value;
    for (const netsnmp_variable_list *variable = response->variables; variable != nullptr;
         variable = variable->next_variable)
        value = valueOfVariable(*variable, asked.charSet, asked.stringsAsData);
    return value;
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
    SnmpLibrary &library = SnmpLibrary::instance();
    // The load count also includes failed attempts, hence the second check.
    if (!loadLibrary() || !library.isUsable())
        return fail(QVSNMPArchitectureMismatch);
    const QString address = QVNetworkResolver_M880::resolveToIP(host);
    if (address.isNull())
        return fail(QVSNMPCannotConnect);
    // It reads the files named in the environment, which may block.
    const auto isReady = platform::callOnWorker([&library] {
        library.initialize("KelmarPDE");
        return true;
    });
    if (!isReady)
        return fail(QVSNMPCannotConnect);
    const SnmpCalls &calls = library;
    auto session = platform::callOnWorker([calls, address] { return openedSession(calls, address); });
    if (!session)
        return fail(QVSNMPCannotConnect);
    if ((*session)->handle == nullptr)
        return fail(QVSNMPArchitectureMismatch);
    return std::unique_ptr<QVSNMP_M880>(new QVSNMP_M880(std::move(*session)));
}

QVSNMP_M880::QVSNMP_M880(std::shared_ptr<SnmpSession> session)
    : m_theSession(std::move(session)), m_charSet(NSASCIIStringEncoding)
{
    m_theSession->isToBeClosed = false; // unless closeSession() sets it
}

QVSNMP_M880::~QVSNMP_M880()
{
    unloadLibrary();
}

void QVSNMP_M880::closeSession()
{
    if (!m_theSession)
        return;
    m_theSession->isToBeClosed = true;
    m_theSession.reset();
}

bool QVSNMP_M880::isIdle() const
{
    return m_theSession.use_count() == 1 && SnmpLibrary::instance().libraryLoaded != 0;
}

qint32 QVSNMP_M880::lastError() const
{
    const netsnmp_session *session =
        isIdle() ? m_theSession->calls.tap_snmp_sess_session(m_theSession->handle) : nullptr;
    return session == nullptr ? m_lastError : session->s_errno;
}

QVariant QVSNMP_M880::sendRequestWithSize(const SnmpOid *oid, size_t size)
{
    if (!isIdle())
        return {};
    const auto value = platform::callOnWorker(
        [request = Request{m_theSession, {oid, oid + size}, m_charSet, m_returnStringsAsData}] {
            return answerTo(request);
        });
    return value.value_or(QVariant());
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
        // A partly read column is discarded, since the rest is unknown.
        if (!value.isValid() && platform::Background::isGivenUp()) {
            m_rowsOfLastColumn.clear();
            return std::nullopt;
        }
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
