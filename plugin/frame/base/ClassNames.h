// The CIM classes that this plug-in publishes.
#pragma once

namespace strake {

inline constexpr const char* kSPComputerSystem = "VELKSG_SP_ComputerSystem";
inline constexpr const char* kIPProtocolEndpoint = "VELKSG_ServProc_IPProtocolEndpoint";
inline constexpr const char* kIPProtocolEndpoint2 = "VELKSG_ServProc_IPProtocolEndpoint2";
inline constexpr const char* kDialProtocolEndpoint1 = "VELKSG_ServProc_DialProtocolEndpoint1";
inline constexpr const char* kDialProtocolEndpoint2 = "VELKSG_ServProc_DialProtocolEndpoint2";
inline constexpr const char* kDialProtocolEndpoint3 = "VELKSG_ServProc_DialProtocolEndpoint3";
inline constexpr const char* kDialProtocolEndpoint4 = "VELKSG_ServProc_DialProtocolEndpoint4";
inline constexpr const char* kNumericSensor = "VELKSG_SP_NumericSensor";

// What the instances of all four dial classes carry as their creation class.
inline constexpr const char* kDialProtocolEndpoint = "VELKSG_ServProc_DialProtocolEndpoint";

}  // namespace strake
