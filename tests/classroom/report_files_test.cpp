#include "classroom/report_files.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "batch/memory_limit.h"
#include "hostile_report.h"

namespace zerimo::classroom {
namespace {

QJsonObject Read(const Report& report) { return QJsonDocument::fromJson(SummaryOf(report)).object(); }

TEST(Summary, HoldsEveryTextAsItIs) {
  const QJsonObject pupil = Read(HostileReport()).value("pupils").toArray().at(0).toObject();
  EXPECT_EQ(pupil.value("message").toString(), Hostile);
  EXPECT_EQ(pupil.value("by").toString(), Hostile);
  EXPECT_EQ(pupil.value("printed").toArray().at(1).toString(), Hostile);
  EXPECT_EQ(pupil.value("typed").toArray().at(0).toString(), Hostile);
  EXPECT_EQ(pupil.value("notes").toArray().at(0).toString(), Hostile);
  EXPECT_EQ(pupil.value("boxes").toArray().at(0).toObject().value("text").toString(), Hostile);
  EXPECT_EQ(pupil.value("place").toObject().value("statement").toString(), Hostile);
  EXPECT_EQ(pupil.value("session").toString(), "<b>\".session");
  EXPECT_TRUE(pupil.value("file").toString().endsWith(QStringLiteral("\"'&\n\ufffdFF.ZRM")));
}

TEST(Summary, TellsOfTheRunAsAWhole) {
  const QJsonObject summary = Read(HostileReport());
  EXPECT_EQ(summary.value("format").toInt(), 1);
  EXPECT_EQ(summary.value("program").toString(), "zerimo-batch 1.2.3");
  EXPECT_EQ(summary.value("made").toString(), "2026-01-02T03:04:05");
  EXPECT_EQ(summary.value("folder").toString(), Hostile);
  EXPECT_EQ(summary.value("limits").toObject().value("seconds").toDouble(), 10);
  EXPECT_EQ(summary.value("limits").toObject().value("steps").toDouble(), 1000);
  const QJsonValue megabytes = batch::MemoryLimit::IsThere() ? QJsonValue(64) : QJsonValue();
  EXPECT_EQ(summary.value("limits").toObject().value("megabytes"), megabytes);
}

TEST(Summary, SaysWhetherItIsPartial) {
  Report report = HostileReport();
  report.Wanted = 2;
  EXPECT_EQ(Read(report).value("partial"), QJsonValue(false));
  report.Wanted = 3;
  EXPECT_EQ(Read(report).value("partial"), QJsonValue(true));
  EXPECT_EQ(Read(report).value("wanted").toInt(), 3);
}

TEST(Summary, WhatThereIsNotIsNull) {
  Report report;
  report.Runs.resize(1);
  report.Runs[0].Who.Program = "ANNA.ZRM";
  report.Runs[0].Outcome.How = Result::NotRun;
  const QJsonObject summary = Read(report);
  for (const char* key : {"seconds", "steps", "megabytes"}) {
    EXPECT_TRUE(summary.value("limits").toObject().value(QLatin1String(key)).isNull()) << key;
  }
  const QJsonObject pupil = summary.value("pupils").toArray().at(0).toObject();
  EXPECT_EQ(pupil.value("result").toString(), "not run");
  EXPECT_EQ(pupil.value("picture"), QJsonValue(false));
  for (const char* key : {"session", "by", "message", "place"}) {
    EXPECT_TRUE(pupil.value(QLatin1String(key)).isNull()) << key;
  }
}

TEST(Summary, PupilsStandInTheOrderOfTheReport) {
  Report report;
  report.Runs.resize(2);
  report.Runs[0].Who.Program = "B.ZRM";
  report.Runs[1].Who.Program = "A.ZRM";
  const QJsonArray pupils = Read(report).value("pupils").toArray();
  EXPECT_EQ(pupils.at(0).toObject().value("file").toString(), "B.ZRM");
  EXPECT_EQ(pupils.at(1).toObject().value("file").toString(), "A.ZRM");
}

}  // namespace
}  // namespace zerimo::classroom
