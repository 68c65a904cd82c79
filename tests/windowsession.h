// The real windows on a screen that nobody sees, over a scratch working folder, used by mouse and keyboard.
#pragma once

#include "tools/workingfolder.h"
#include "windows/qt/binding.h"
#include "windows/qt/dress.h"
#include "windows/qt/look.h"
#include "windows/qt/picturefiles/picturefile.h"

#include <QApplication>
#include <QListWidget>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <fstream>
#include <optional>
#include <sstream>

namespace tessaly {

inline QApplication& application() {
    static int argc = 1;
    static char name[] = "windowtests", *argv[] = {name, nullptr};
    static auto* app = [] {
        QApplication::setDesktopSettingsAware(false);
        auto* made = new QApplication(argc, argv);
        setlook(*made);
        usepicturefiles();
        return made;
    }();
    return *app;
}

class windowsession : public testing::Test {
  protected:
    void SetUp() override {
        application();
        folder.emplace(TESSALY_SOURCE_DIR);
        openwindows(dresswindow);
    }

    void TearDown() override {
        dropwindows();
        folder.reset();
    }

    static void click(const control& c) {
        ASSERT_TRUE(widgetof(c) && widgetof(c)->isVisible()) << c.name;
        QTest::mouseClick(widgetof(c), Qt::LeftButton);
    }
    static void click(const char* name) {
        ASSERT_TRUE(findcontrol(name)) << name;
        click(*findcontrol(name));
    }
    static void start() { click(startprogrambtn); }

    // A click of the mouse on a row of a list.
    static void pick(const control& c, int row) {
        auto* rows = qobject_cast<QListWidget*>(widgetof(c));
        ASSERT_TRUE(rows && rows->isVisible() && row < rows->count()) << c.name;
        QTest::mouseClick(rows->viewport(), Qt::LeftButton, {}, rows->visualItemRect(rows->item(row)).center());
    }

    static void type(const control& c, const char* text) {
        widgetof(c)->window()->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(widgetof(c)->window()));
        widgetof(c)->clearFocus();
        widgetof(c)->setFocus(Qt::TabFocusReason);  // which selects what stands in it
        QTest::keyClicks(widgetof(c), text);
    }

    static std::string file(const char* path) {
        std::ostringstream bytes;
        bytes << std::ifstream(path, std::ios::binary).rdbuf();
        return bytes.str();
    }

    std::optional<workingfolder> folder;
};

}  // namespace tessaly
