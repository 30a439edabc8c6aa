// How the host writes an event: one JSON object per line, or one readable line.
#include "EventPrinter.h"

#include <QJsonArray>

#include <gtest/gtest.h>

TEST(EventPrinterTest, WritesTheFieldsInTheirOrderAsJsonOrAsReadableText)
{
    const OdEventFields fields{{"name", "_Home"},
                               {"result", 5100},
                               {"args", QJsonArray{"a b", 1}},
                               {"path", "/my drawings/plan \"A\".dxf"},
                               {"none", QJsonValue()}};
    EXPECT_EQ(EventPrinter::jsonLine("command-ended", fields),
              R"({"event":"command-ended","name":"_Home","result":5100,"args":["a b",1],)"
              R"("path":"/my drawings/plan \"A\".dxf","none":null})");
    EXPECT_EQ(EventPrinter::readableLine("command-ended", fields),
              R"(command-ended name=_Home result=5100 args=["a b",1] )"
              R"(path="/my drawings/plan \"A\".dxf" none=null)");
    EXPECT_EQ(EventPrinter::readableLine("mainframe-created", {}), "mainframe-created");
}
