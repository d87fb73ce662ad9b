// SPDX-License-Identifier: MIT
#include "str-table.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTranslator>
#include <tuple>

namespace {

/// Answers for one text, the way a catalogue with escapes in it would.
class EscapingTranslator : public QTranslator {
public:
    QString translate(const char *context, const char *text, const char *, int) const override {
        const bool ours = qstrcmp(context, "global") == 0 && qstrcmp(text, "Lumaris Backup") == 0;
        return ours ? QStringLiteral("a\\nb\\tc\\n") : QString();
    }
    bool isEmpty() const override { return false; }
};

// Rows spread over the table, some of them neighbours: callers use the numbers.
TEST(StrTable, RowsAndKeys) {
    StrTable::InitStrTable();
    const std::tuple<int, const char *, const char *> cases[] = {
        {0, "tray_help", "Help"},
        {38, "tray_main_app", "Open Lumaris Backup"},
        {39, "desc_lmrs_env_preparation_done", "Lumaris Backup is ready."},
        {64, "filter_last_week", "Last week"},
        {108, "month_jan", "January"},
        {131, "last_page", "Last page"},
        {186, "accessible_title_settings", "Settings"},
        {217, "app_name", "Lumaris Backup"},
        {218, "desc_lmrs_env_preparing", "Lumaris Backup is initializing..."},
        {259, "setting_filter_table_desc", "Matching files are not backed up."},
        {-1, "tray_hel", ""},
    };
    for (const auto &[id, key, text] : cases) {
        EXPECT_EQ(id, StrTable::LookupStrID(QString::fromLatin1(key).toUpper())) << key;
        EXPECT_EQ(text, StrTable::LoadStr(id).toStdString()) << key;
    }
    EXPECT_TRUE(StrTable::LoadStr(260).isEmpty());

    int argc = 0;  // the translator of the moment decides
    QCoreApplication app(argc, nullptr);
    EscapingTranslator translator;
    QCoreApplication::installTranslator(&translator);
    EXPECT_EQ("a\nb\tc\n", StrTable::LoadStr(217).toStdString());
    QCoreApplication::removeTranslator(&translator);
    EXPECT_EQ("Lumaris Backup", StrTable::LoadStr(217).toStdString());
}

}  // namespace
