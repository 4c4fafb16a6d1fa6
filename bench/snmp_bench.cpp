// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// The overhead of the SNMP client compared with direct calls of net-snmp: for one GET, and for the 97 rows of
// a full device. Both query the same device alternately, so the ratio is valid on any machine. Also measures
// the first client of a process. Exits with 1 if a goal is missed. Needs root, for port 161 in a private
// network namespace.

#include "device/snmp_client.h"
#include "device/snmp_library.h"
#include "tests/support/private_network.h"
#include "tests/support/udp_responder.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

namespace {

constexpr double goal = 1.03;
constexpr char address[] = "127.0.0.2";

struct Column
{
    SnmpOid number;
    quint32 rows;
};
constexpr std::array columns{Column{2, 15}, Column{3, 15}, Column{4, 63}, Column{5, 4}};
constexpr int allRows = 97;

using Oid = std::array<SnmpOid, 18>;
Oid firstRow(SnmpOid column)
{
    return {1, 3, 6, 1, 4, 1, 5309, 2, 3, 50, 1, 3, 30, 1, 1, column, 1, 1};
}

// Sends the same requests with net-snmp directly.
class Direct
{
public:
    Direct()
    {
        netsnmp_session session{};
        m_snmp.tap_snmp_sess_init(&session);
        std::string peer(address);
        std::string community("public");
        session.peername = peer.data();
        session.version = SNMP_VERSION_2c;
        session.community = reinterpret_cast<unsigned char *>(community.data());
        session.community_len = community.size();
        m_session = m_snmp.tap_snmp_sess_open(&session);
    }
    ~Direct() { m_snmp.tap_snmp_sess_close(m_session); }
    Direct(const Direct &) = delete;
    Direct &operator=(const Direct &) = delete;

    bool get(const Oid &oid) const
    {
        netsnmp_pdu *request = m_snmp.tap_snmp_pdu_create(SNMP_MSG_GET);
        m_snmp.tap_snmp_add_null_var(request, oid.data(), oid.size());
        netsnmp_pdu *response = nullptr;
        const bool answered =
            m_snmp.tap_snmp_sess_synch_response(m_session, request, &response) == STAT_SUCCESS;
        if (response != nullptr)
            m_snmp.tap_snmp_free_pdu(response);
        return answered;
    }
    int getAllRows() const
    {
        int count = 0;
        for (const Column &column : columns) {
            Oid oid = firstRow(column.number);
            for (quint32 row = 1; row <= column.rows; ++row, ++oid.back())
                count += get(oid) ? 1 : 0;
        }
        return count;
    }

private:
    const SnmpLibrary &m_snmp = SnmpLibrary::instance();
    void *m_session = nullptr;
};

int getAllRows(QVSNMP_M880 &client)
{
    qsizetype count = 0;
    for (const Column &column : columns) {
        Oid oid = firstRow(column.number);
        count += client.sendBulkRequestWithSizeAndCount(oid.data(), oid.size(), column.rows)->size();
    }
    return static_cast<int>(count);
}

template <typename Work>
double microseconds(Work &&work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count();
}

double median(std::vector<double> values)
{
    std::nth_element(values.begin(), values.begin() + static_cast<long>(values.size() / 2), values.end());
    return values.at(values.size() / 2);
}

// Whether the client meets the goal; client and direct calls alternate, and so does their order.
template <typename Client, typename Straight>
bool compare(const char *what, int repetitions, Client &&client, Straight &&straight)
{
    std::vector<double> clientTimes;
    std::vector<double> straightTimes;
    for (int i = 0; i < repetitions; ++i) {
        if (i % 2 == 0)
            clientTimes.push_back(microseconds(client));
        straightTimes.push_back(microseconds(straight));
        if (i % 2 != 0)
            clientTimes.push_back(microseconds(client));
    }
    // Ratios of consecutive measurements, which are equally affected by the load of the machine.
    std::vector<double> ratios(clientTimes.size());
    std::transform(clientTimes.begin(), clientTimes.end(), straightTimes.begin(), ratios.begin(),
                   std::divides<>());
    const double ratio = median(ratios);
    std::printf("%-8s client %8.1f us, net-snmp %8.1f us, ratio %.3f (goal %.2f)\n", what,
                median(clientTimes), median(straightTimes), ratio, goal);
    return ratio <= goal;
}

void firstClient()
{
    const auto openAndClose = [] {
        const auto client = QVSNMP_M880::initWithHostAndReturnError(QString::fromLatin1(address), nullptr);
        client->closeSession();
    };
    const double first = microseconds(openAndClose);
    std::vector<double> later;
    for (int i = 0; i < 21; ++i)
        later.push_back(microseconds(openAndClose));
    std::printf("first client of a process %.2f ms, a later one that loads anew %.2f ms\n", first / 1000,
                median(later) / 1000);
}

} // namespace

int main()
{
    const QString whyNot = enterPrivateNetwork();
    if (!whyNot.isNull()) {
        std::printf("not measured: %s\n", qPrintable(whyNot));
        return 1;
    }
    const UdpResponder device(address, [](const SnmpReply &reply) -> SnmpReplies {
        return {reply.withString("CMYK destination profile 01")};
    });
    firstClient();
    const auto client = QVSNMP_M880::initWithHostAndReturnError(QString::fromLatin1(address), nullptr);
    bool met = true;
    {
        const Direct direct;
        const int before = device.requestCount();
        getAllRows(*client);
        const int datagrams = device.requestCount() - before;
        std::printf("97 rows  %d datagrams (goal %d)\n", datagrams, allRows);
        met = datagrams == allRows;
        const Oid oid = firstRow(4);
        met &= compare(
            "one GET", 20000, [&] { client->sendRequestWithSize(oid.data(), oid.size()); },
            [&] { direct.get(oid); });
        met &= compare(
            "97 rows", 1000, [&] { getAllRows(*client); }, [&] { direct.getAllRows(); });
    }
    client->closeSession();
    return met ? 0 : 1;
}
