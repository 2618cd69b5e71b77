// The instances in CIM-XML.
#include "report/CimXmlReport.h"
#include "tests/report/Instances.h"
#include "tests/support/ReadBack.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

std::string XmlOf(const report::Report& report) { return Written(report::WriteCimXml, report); }

std::string WithObjects(const std::string& lines) {
  return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
         "<CIM CIMVERSION=\"2.0\" DTDVERSION=\"2.0\">\n<DECLARATION>\n<DECLGROUP>\n" +
         lines + "</DECLGROUP>\n</DECLARATION>\n</CIM>\n";
}

std::string Property(const std::string& name, const std::string& type, const std::string& value) {
  return "<PROPERTY NAME=\"" + name + "\" TYPE=\"" + type + "\"><VALUE>" + value +
         "</VALUE></PROPERTY>";
}

std::string SystemObject(const std::string& content) {
  return "<VALUE.OBJECT><INSTANCE CLASSNAME=\"VELKSG_SP_ComputerSystem\">" + content +
         "</INSTANCE></VALUE.OBJECT>\n";
}

TEST(CimXmlReport, WritesInstancesWithTheirPropertiesInOrder) {
  const std::vector<cim::StoredInstance> instances = {
      Instance("VELKSG_SP_ComputerSystem",
               {{"SourceNode", Node(255)}, {"Name", "<&>\"'\r\n\t\x01 \xC3\xA9\xFF"}}),
      Instance("VELKSG_SP_ComputerSystem", {{"SPClock", SomeTime()}, {"Name", ""}}),
      Instance("VELKSG_SP_ComputerSystem", {}),
  };
  EXPECT_EQ(XmlOf(ReportOf(instances)),
            WithObjects(SystemObject(Property("SourceNode", "uint8", "255") +
                                     Property("Name", "string",
                                              "&lt;&amp;&gt;\"'\\x0D\n\t\\x01 \xC3\xA9\\xFF")) +
                        SystemObject(Property("SPClock", "datetime", "20100615134530.000000-120") +
                                     Property("Name", "string", "")) +
                        SystemObject("")));
}

TEST(CimXmlReport, GivesNumbersTheirTypes) {
  const std::string xml = XmlOf(ReportOf({Sensor(2, "Fan", -3, 65, -2)}));
  for (const std::string& property :
       {Property("CurrentReading", "sint32", "-3"), Property("BaseUnits", "uint16", "65"),
        Property("UnitModifier", "sint32", "-2")}) {
    EXPECT_NE(xml.find(property), std::string::npos) << property;
  }
}

TEST(CimXmlReport, WithoutInstancesIsAnEmptyGroup) {
  EXPECT_EQ(XmlOf(ReportOf({})), WithObjects(""));
}

TEST(CimXmlReport, SaysASensorsStateBeforeItsProperties) {
  const report::Report report(
      {.facts = SomeFacts(),
       .instances = {Instance("VELKSG_SP_NumericSensor", {{"CurrentReading", 51}})}},
      report::Secrets::Masked, UpperLimits(40, 50));
  EXPECT_EQ(
      XmlOf(report),
      WithObjects("<VALUE.OBJECT><INSTANCE CLASSNAME=\"VELKSG_SP_NumericSensor\">"
                  "<QUALIFIER NAME=\"State\" TYPE=\"string\"><VALUE>critical</VALUE>"
                  "</QUALIFIER>" +
                  Property("CurrentReading", "sint32", "51") + "</INSTANCE></VALUE.OBJECT>\n"));
}

TEST(CimXmlReport, WritesAValueAsTheTypeThatItHas) {
  EXPECT_EQ(
      XmlOf(ReportOf({Instance("VELKSG_SP_ComputerSystem", {{"SourceNode", "1"}, {"Name", 2}})})),
      WithObjects(
          SystemObject(Property("SourceNode", "string", "1") + Property("Name", "sint32", "2"))));
}

}  // namespace
}  // namespace strake::tests
