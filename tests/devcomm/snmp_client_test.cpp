// Host only: sessions and requests of the built-in client over a scripted wire.
#include "devcomm/snmp_client.h"
#include "devcomm/snmp_values.h"
#include "platform_control.h"

#include <gtest/gtest.h>

namespace {

using platform::Datagram;

TEST(SnmpClient, FirstRequestOfASession) {
    platform::SetWire({});
    const SnmpSession session = ClientOpen("192.0.2.7", "", 2000, 3);
    ASSERT_NE(session, nullptr);
    auto* varBind = static_cast<SnmpVarBind*>(ClientMemAlloc(sizeof(SnmpVarBind)));
    SnmpVarBindList list = {varBind, 1};
    ASSERT_TRUE(ClientStrToOid(".1.3.6.1.2.1.1.2.0", &varBind->name));
    varBind->value.asnType = ASN_NULL;
    EXPECT_EQ(ClientRequest(session, SNMP_PDU_GET, &list, nullptr, nullptr), 0);
    EXPECT_EQ(GetLastError(), 4102u);
    const Datagram expected = {0x30, 0x21, 0x02, 0x01, 0x00, 0x04, 0x00, 0xA0, 0x1A, 0x02, 0x02, 0x01,
                               0x01, 0x02, 0x01, 0x00, 0x02, 0x01, 0x00, 0x30, 0x0E, 0x30, 0x0C, 0x06,
                               0x08, 0x2B, 0x06, 0x01, 0x02, 0x01, 0x01, 0x02, 0x00, 0x05, 0x00};
    EXPECT_EQ(platform::ReadWire().sent, std::vector<Datagram>(5, expected));
    EXPECT_EQ(platform::ReadWire().polls, 50000u);
    ClientVarBindListFree(&list);
    EXPECT_EQ(ClientClose(session), TRUE);
}

} // namespace
