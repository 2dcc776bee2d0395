// The SNMP entry points of a device, which answers as scripted.
#include "devcomm/queries/scripted_device.h"

#include "devcomm/snmp/snmp_values.h"

#include <cstring>
#include <gtest/gtest.h>
#include <set>

namespace {

// The last error that every successful call leaves; callers must not take it for theirs.
constexpr DWORD kNoise = 4242;

ScriptedDevice* device;
std::set<void*> openSessions;

// As the system's, not zero.
void* WINAPI MemAlloc(UINT octets) {
    void* block = ClientMemAlloc(octets);
    return block != nullptr ? memset(block, 0xCD, octets) : nullptr;
}

// The built-in client has no BIT STRING, which this device sends in the same form as octets.
void WINAPI VarBindListFree(SnmpVarBindList* list) {
    for (UINT i = 0; i < list->len; ++i)
        if (list->list[i].value.asnType == ASN_BITS)
            list->list[i].value.asnType = ASN_OCTETSTRING;
    ClientVarBindListFree(list);
    SetLastError(kNoise);
}

SnmpSession WINAPI Open(const char* agent, const char* community, INT timeOut, INT retries) {
    const std::string limits = std::to_string(timeOut) + " " + std::to_string(retries);
    device->sessions.push_back(std::string(agent) + " " + community + " " + limits);
    if (device->openError != 0) {
        SetLastError(device->openError);
        return nullptr;
    }
    void* session = malloc(1);
    openSessions.insert(session);
    SetLastError(kNoise);
    return session;
}

BOOL WINAPI Close(SnmpSession session) {
    EXPECT_EQ(openSessions.erase(session), 1u) << "closed a session that is not open";
    free(session);
    ++device->closes;
    SetLastError(kNoise);
    return TRUE;
}

std::string TextOf(const AsnObjectIdentifier& oid) {
    std::string text;
    for (UINT i = 0; i < oid.idLength; ++i)
        text += "." + std::to_string(oid.ids[i]);
    return text;
}

template <typename Element>
Element* CopyOf(const Element* elements, size_t count) {
    auto* copy = static_cast<Element*>(ClientMemAlloc(static_cast<UINT>(count * sizeof(Element))));
    if (copy != nullptr && count > 0)
        memcpy(copy, elements, count * sizeof(Element));
    return copy;
}

// False, and nothing stored, without memory.
bool Store(const Answer& answer, AsnAny& value) {
    const size_t octets = answer.octets.size(), ids = answer.ids.size();
    AsnAny stored;
    memset(&stored, 0xCD, sizeof(stored));
    stored.asnType = answer.type;
    if (answer.type == ASN_BITS || SnmpFormOf(answer.type) == SnmpForm::kOctets) {
        BYTE* copy = CopyOf(reinterpret_cast<const BYTE*>(answer.octets.data()), octets);
        stored.asnValue.string = {copy, static_cast<UINT>(octets), TRUE};
        if (copy == nullptr)
            return false;
    } else if (answer.type == ASN_OBJECTIDENTIFIER) {
        stored.asnValue.object = {static_cast<UINT>(ids), CopyOf(answer.ids.data(), ids)};
        if (stored.asnValue.object.ids == nullptr)
            return false;
    } else {
        stored.asnValue.number = answer.number;
    }
    value = stored;
    return true;
}

INT WINAPI Request(SnmpSession session, BYTE requestType, SnmpVarBindList* list, AsnInteger32* errorStatus,
                   AsnInteger32* errorIndex) {
    EXPECT_TRUE(openSessions.count(session) == 1 && requestType == 0xA0 && list->len == 1);
    EXPECT_EQ(list->list[0].value.asnType, 0x05);
    device->asked.push_back(TextOf(list->list[0].name));

    const auto found = device->answers.find(device->asked.back());
    const Answer answer = device->asked.size() == device->failingRequest ? Failing(kRequestError)
                          : found != device->answers.end()               ? found->second
                                                                         : Answer{ASN_NULL}.With(2, 1);
    if (answer.failure != 0) {
        SetLastError(answer.failure);
        return 0;
    }
    if (device->asked.size() % 2 == 1) { // every other reply comes in another array
        SnmpVarBind* other = CopyOf(list->list, 1);
        if (other == nullptr)
            return 0;
        ClientMemFree(list->list);
        list->list = other;
    }
    if (!Store(answer, list->list[0].value))
        return 0;
    *errorStatus = answer.errorStatus;
    *errorIndex = answer.errorIndex;
    SetLastError(kNoise);
    return 1;
}

BOOL WINAPI StrToOid(const char* text, AsnObjectIdentifier* oid) {
    return device->textsConvert && ClientStrToOid(text, oid);
}

} // namespace

Answer Answer::With(AsnInteger32 status, AsnInteger32 index) const {
    Answer changed = *this;
    changed.errorStatus = status;
    changed.errorIndex = index;
    return changed;
}

Answer Number(int32_t number, BYTE type) {
    return {type, number};
}

Answer Text(const std::string& octets, BYTE type) {
    return {type, 0, octets};
}

Answer Oid(const std::vector<UINT>& ids) {
    return {ASN_OBJECTIDENTIFIER, 0, {}, ids};
}

Answer Failing(DWORD lastError) {
    return {ASN_NULL, 0, {}, {}, 0, 0, lastError};
}

ScriptedDevice::ScriptedDevice() {
    device = this;
    // clang-format off
    snmpEntryPoints = {MemAlloc, ClientMemFree, ClientOidFree, ClientVarBindFree, VarBindListFree,
                       Open, Close, Request, StrToOid, nullptr, nullptr, 1};
    // clang-format on
}

ScriptedDevice::~ScriptedDevice() {
    EXPECT_EQ(openSessions.size(), 0u) << "a session is left open";
    snmpEntryPoints = {};
    device = nullptr;
}
