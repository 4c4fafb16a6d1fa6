// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// Responses of an SNMP device: four bytes that select type, error, character set and form, then the value.
// The library that decodes packets is replaced, so that all values it could return are covered.

#include "device/snmp_client.h"
#include "device/snmp_value.h"
#include "device/string_encoding.h"
#include "device/value_conversion.h"
#include "tests/device/stub_netsnmp.h"
#include "tests/fuzz/fuzz_support.h"

#include <dlfcn.h>

#include <array>

namespace {

constexpr std::array<u_char, 8> types{ASN_INTEGER,   ASN_OCTET_STR,     ASN_BOOLEAN,       ASN_OBJECT_ID,
                                      ASN_COUNTER64, SNMP_NOSUCHOBJECT, SNMP_ENDOFMIBVIEW, ASN_NULL};

StubControl *control()
{
    static void *const library = ::dlopen(KELMAR_STUB_NETSNMP, RTLD_NOW | RTLD_LOCAL);
    static auto *const found =
        library ? static_cast<StubControl *>(::dlsym(library, "stub_control")) : nullptr;
    requireThat(found);
    return found;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size < 4)
        return 0;
    QVSNMP_M880::setLibraryNames({KELMAR_STUB_NETSNMP});
    StubControl *stub = control();
    *stub = {};
    QByteArray value = bytesOf(data + 4, size - 4);
    value.detach();
    stub->variable.type = types[data[0] % types.size()];
    stub->variable.val.string = value.isEmpty() ? nullptr : reinterpret_cast<u_char *>(value.data());
    stub->variable.val_len = static_cast<size_t>(value.size());
    stub->response.errstat = data[1] < 0xf0 ? SNMP_ERR_NOERROR : data[1];

    const quint32 charSet = stringEncodingForCharacterSet(data[2] | (data[3] & 0x7f) << 8);
    const QVariant read = valueOfVariable(stub->variable, charSet, (data[3] & 0x80) != 0);
    wholeNumber(read);
    booleanValue(read);
    decodedString(value, data[3] % 32);

    QString error;
    const auto client = QVSNMP_M880::initWithHostAndReturnError(QStringLiteral("127.0.0.1"), &error);
    requireThat(client);
    client->determineDefaultCharsetForPrinter();
    std::array<SnmpOid, 4> oid{1, 3, 6, 1};
    const auto column = client->sendBulkRequestWithSizeAndCount(oid.data(), oid.size(), 3);
    requireThat(!column || column->size() <= 3);
    client->closeSession();
    return 0;
}
