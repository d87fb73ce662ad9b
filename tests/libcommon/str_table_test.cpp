#include "str-table.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTranslator>

int qInitResources_texts();

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

TEST(StrTable, RowsAndKeys) {
    EXPECT_TRUE(StrTable::LoadStr(217).isEmpty());  // not filled yet
    EXPECT_EQ(-1, StrTable::LookupStrID(QStringLiteral("app_name")));
    StrTable::InitStrTable();
    const struct {
        int id;
        const char *key, *text;
    } cases[] = {
        {0, "tray_help", "Help"},
        {108, "MONTH_JAN", "January"},
        {217, "APP_Name", "Lumaris Backup"},
        {218, "desc_lmrs_env_preparing", "Lumaris Backup is initializing..."},
        {-1, "", ""},
        {-1, "tray_hel", ""},
    };
    for (const auto &row : cases) {
        EXPECT_EQ(row.id, StrTable::LookupStrID(QString::fromLatin1(row.key))) << row.key;
        EXPECT_EQ(row.text, StrTable::LoadStr(row.id).toStdString()) << row.key;
    }
    EXPECT_TRUE(StrTable::LoadStr(260).isEmpty());
}

TEST(StrTable, TranslatesAtTheMomentOfTheCall) {
    StrTable::InitStrTable();
    int argc = 0;
    QCoreApplication app(argc, nullptr);
    EscapingTranslator translator;
    QCoreApplication::installTranslator(&translator);
    EXPECT_EQ("a\nb\tc\n", StrTable::LoadStr(217).toStdString());
    QCoreApplication::removeTranslator(&translator);
    EXPECT_EQ("Lumaris Backup", StrTable::LoadStr(217).toStdString());
}

TEST(StrTable, EveryTextTranslatesToItselfInEnglish) {
    qInitResources_texts();
    StrTable::InitStrTable();
    QTranslator english;
    ASSERT_TRUE(english.load(QStringLiteral(":/enu.qm")));
    for (int id = 0; id < 260; ++id) {
        const QByteArray text = StrTable::LoadStr(id).toUtf8();
        EXPECT_EQ(text, english.translate("global", text.constData()).toUtf8()) << id;
    }
}

}  // namespace
