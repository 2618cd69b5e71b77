// The decoders of the network fields, over every value of each byte that they
// read, against tables written out here.
#include "plugin/config/NetworkRecords.h"
#include "tests/support/Scenario.h"

#include <array>
#include <gtest/gtest.h>
#include <map>
#include <span>
#include <string>

namespace strake::tests {
namespace {

std::string Decoded(ValueDecoder decode, const std::string& value) {
  std::string text;
  decode(ByteView(std::span(reinterpret_cast<const unsigned char*>(value.data()), value.size())),
         text);
  return text;
}

// The decoder that a record's table gives a field.
ValueDecoder DecoderOf(std::span<const RecordField> fields, const std::string& name) {
  for (const RecordField& field : fields) {
    if (name == field.name) {
      return field.decode;
    }
  }
  ADD_FAILURE() << "no field " << name;
  return DecodeText;
}

std::string Hexadecimal(int byte) {
  static const std::string kDigits = "0123456789ABCDEF";
  const auto index = static_cast<std::size_t>(byte);
  return {kDigits.at(index / 16), kDigits.at(index % 16)};
}

TEST(ValueDecoders, EachCodedByteReadsByItsTableAndElseAsNone) {
  struct Case {
    const char* field;
    std::map<int, std::string> texts;
  };
  const Case cases[] = {
      {"LineType", {{1, "Ethernet"}, {2, "Token Ring"}, {3, "PPP"}}},
      {"LANDataRate", {{1, "4M"}, {2, "16M"}, {3, "10M"}, {4, "100M"}, {5, "Auto"}}},
      {"Duplex", {{1, "Full"}, {2, "Half"}, {3, "Auto"}}},
      {"DHCPEnabled",
       {{0, "DHCP Disabled"}, {1, "DHCP Enabled"}, {2, "DHCP then try static IP configuration"}}},
      {"PPPModemCOMPort", {{1, "COM1"}}},
      {"PPPAuthenticationProtocol", {{1, "PAP Only"}, {2, "CHAP Only"}, {3, "Allow PAP"}}},
  };
  for (const Case& c : cases) {
    const ValueDecoder decode = DecoderOf(kInterfaceFields, c.field);
    for (int byte = 0; byte <= 255; ++byte) {
      const auto known = c.texts.find(byte);
      const std::string expected = known == c.texts.end() ? "None" : known->second;
      EXPECT_EQ(Decoded(decode, Bytes({byte, 1})), expected) << c.field << " " << byte;
    }
  }
}

TEST(ValueDecoders, EachFlagIsSetByAnyByteButZero) {
  const ValueDecoder interface = DecoderOf(kInterfaceFields, "Enabled");
  const ValueDecoder dns = DecoderOf(kDnsFields, "DNS");
  for (int byte = 0; byte <= 255; ++byte) {
    const std::string expected = byte == 0 ? "Disabled" : "Enabled";
    EXPECT_EQ(Decoded(interface, Bytes({byte})), expected) << byte;
    EXPECT_EQ(Decoded(dns, Bytes({byte})), expected) << byte;
    EXPECT_EQ(Decoded(DecodeFlag<kEnabledWhenClear>, Bytes({byte})),
              byte == 0 ? "Enabled" : "Disabled")
        << byte;
  }
}

TEST(ValueDecoders, AnMtuIsOneUnsignedByte) {
  const ValueDecoder decode = DecoderOf(kInterfaceFields, "NetworkMTU");
  for (int byte = 0; byte <= 255; ++byte) {
    EXPECT_EQ(Decoded(decode, Bytes({byte, 5})), std::to_string(byte) + " bytes");
  }
}

TEST(ValueDecoders, AnAddressIsFourUnsignedBytesInOrder) {
  for (int byte = 0; byte <= 255; ++byte) {
    const std::string number = std::to_string(byte);
    EXPECT_EQ(Decoded(DecodeAddress, Bytes({byte, 2, 3, 4, 5})), number + ".2.3.4");
    EXPECT_EQ(Decoded(DecodeAddress, Bytes({1, byte, 3, 4, 5})), "1." + number + ".3.4");
    EXPECT_EQ(Decoded(DecodeAddress, Bytes({1, 2, byte, 4, 5})), "1.2." + number + ".4");
    EXPECT_EQ(Decoded(DecodeAddress, Bytes({1, 2, 3, byte, 5})), "1.2.3." + number);
  }
}

TEST(ValueDecoders, TheTwoMacFormsAreDecimalWithPointsAndHexadecimalWithColons) {
  const ValueDecoder local = DecoderOf(kInterfaceFields, "LocalAdminMACAddress");
  const ValueDecoder burnedIn = DecoderOf(kInterfaceFields, "BurnedInMACAddress");
  const std::string address = Bytes({0x00, 0x1A, 0x2B, 0x3C, 0x4D, 0x5E});
  EXPECT_EQ(Decoded(local, address), "0.26.43.60.77.94");
  EXPECT_EQ(Decoded(burnedIn, address), "00:1A:2B:3C:4D:5E");
  for (int byte = 0; byte <= 255; ++byte) {
    for (std::size_t place = 0; place < 6; ++place) {
      std::string value = Bytes({1, 2, 3, 4, 5, 6, 7});
      value[place] = static_cast<char>(byte);
      std::string decimal;
      std::string hexadecimal;
      for (std::size_t i = 0; i < 6; ++i) {
        const int part = i == place ? byte : static_cast<int>(i) + 1;
        decimal += (i == 0 ? "" : ".") + std::to_string(part);
        hexadecimal += (i == 0 ? "" : ":") + Hexadecimal(part);
      }
      ASSERT_EQ(Decoded(local, value), decimal);
      ASSERT_EQ(Decoded(burnedIn, value), hexadecimal);
    }
  }
}

TEST(ValueDecoders, ATextEndsAtItsFirstZeroByteOrWithItsBytes) {
  struct Case {
    std::string value, text;
  };
  const Case cases[] = {
      {"", ""},
      {std::string(1, '\0'), ""},
      {std::string("\0abc", 4), ""},
      {std::string("abc\0def\0", 8), "abc"},
      {"abc", "abc"},
      {std::string(256, 'x'), std::string(256, 'x')},
      {"\x80\xFF\x01\x7F", "\x80\xFF\x01\x7F"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(Decoded(DecodeText, c.value), c.text);
  }
}

TEST(ValueDecoders, MissingBytesReadAsZeros) {
  struct Case {
    ValueDecoder decode;
    std::string value, text;
  };
  const Case cases[] = {
      {DecodeAddress, "", "0.0.0.0"},
      {DecodeAddress, Bytes({192}), "192.0.0.0"},
      {DecodeAddress, Bytes({192, 168, 255}), "192.168.255.0"},
      {DecodeMacDecimal, "", "0.0.0.0.0.0"},
      {DecodeMacDecimal, Bytes({255, 254}), "255.254.0.0.0.0"},
      {DecodeMacHexadecimal, "", "00:00:00:00:00:00"},
      {DecodeMacHexadecimal, Bytes({255, 10, 9, 8, 7}), "FF:0A:09:08:07:00"},
      {DecodeMtu, "", "0 bytes"},
      {DecodeFlag<>, "", "Disabled"},
      {DecodeFlag<kEnabledWhenClear>, "", "Enabled"},
      {DecodeCode<kDhcpCodes>, "", "DHCP Disabled"},
      {DecodeCode<kLineTypeCodes>, "", "None"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(Decoded(c.decode, c.value), c.text);
  }
}

TEST(ValueDecoders, DecodersReplaceTheTextThatTheyAreGiven) {
  const ValueDecoder decoders[] = {
      DecodeText,   DecodeAddress,         DecodeMacDecimal, DecodeMacHexadecimal,
      DecodeMtu,    DecodeBaudRate,        DecodeGuardTime,  DecodeLoginFlags,
      DecodeFlag<>, DecodeCode<kDhcpCodes>};
  for (const ValueDecoder decode : decoders) {
    std::string text = "what the field before it was, longer than any text of zeros";
    decode(ByteView(), text);
    EXPECT_EQ(text, Decoded(decode, ""));
  }
}

}  // namespace
}  // namespace strake::tests
