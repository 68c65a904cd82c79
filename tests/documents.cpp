// The documents: each link leads somewhere, and each picture is shown.
#include "tests/session.h"

#include <cctype>
#include <regex>
#include <set>

using namespace tessaly;
namespace fs = std::filesystem;

namespace {

std::string document(const fs::path& path) { return session::file(fs::path(TESSALY_SOURCE_DIR) / path); }

// Returns a page with "#-" and its anchor in place of each heading, such as "#-taking-back-a-click".
std::string withanchors(const std::string& page) {
    std::string made = std::regex_replace(page, std::regex("[^[:alnum:]# \n-]"), "");
    for (char& c : made) c = c == ' ' ? '-' : static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return made;
}

std::set<std::string> alltexts(const std::string& text, const char* pattern) {
    std::set<std::string> found;
    const std::regex wanted(pattern);
    for (std::sregex_iterator at(text.begin(), text.end(), wanted), end; at != end; ++at)
        found.insert(std::regex_replace((*at)[1].str(), std::regex("\n"), " "));
    return found;
}

}  // namespace

// Catches an entry that no test shows, and one that has changed where tests name it.
TEST(documents, eachEntryOfNotBugsIsNamedWhereATestShowsIt) {
    const std::set<std::string> triedbyhand{"Two programs that replay in one folder mix up their elements, or end"};
    std::string tests;
    for (const auto& file : fs::recursive_directory_iterator(TESSALY_SOURCE_DIR "/tests"))
        if (file.path().extension() == ".play" || file.path().extension() == ".cpp")
            tests += session::file(file.path());
    const auto titles = alltexts(document("NOT-BUGS.md"), R"(\n\*\*([^*]+)\.\*\*)");
    const auto named = alltexts(tests, R"(\n(?:#|//) NOT-BUGS: (.+))");
    EXPECT_GT(titles.size(), 70u);
    for (const std::string& title : titles) EXPECT_NE(named.contains(title), triedbyhand.contains(title)) << title;
    for (const auto* known : {&named, &triedbyhand})
        for (const std::string& title : *known) EXPECT_TRUE(titles.contains(title)) << title;
}

TEST(documents, noLinkLeadsNowhereAndNoPictureIsLeftOut) {
    const std::string pages = document("docs/guide.md") + document("README.md");
    for (const auto& picture : fs::directory_iterator(TESSALY_SOURCE_DIR "/docs/pictures"))
        EXPECT_NE(pages.find("pictures/" + picture.path().filename().string() + ")"), std::string::npos) << picture;
    const std::regex link(R"(\]\(([^)#:]*)(?:#([^)]*))?\))");
    for (const fs::path page :
         {"README.md", "NOT-BUGS.md", "ARCHITECTURE.md", "BENCHMARKS.md", "CONTRIBUTING.md", "docs/guide.md"}) {
        const std::string text = document(page);
        for (std::sregex_iterator found(text.begin(), text.end(), link), end; found != end; ++found) {
            const std::string file = (*found)[1], anchor = (*found)[2];
            const std::string target = file.empty() ? text : document(page.parent_path() / file);
            EXPECT_NE(target, "(none)") << page << ": " << file;
            EXPECT_TRUE(anchor.empty() || withanchors(target).find("#-" + anchor + '\n') != std::string::npos)
                << page << ": " << file << '#' << anchor;
        }
    }
}

// A desktop finds the entry of a running window by this name.
TEST(documents, theDesktopEntryNamesTheWindowsAsTheProgramDoes) {
    const std::string entry = document("packaging/tessaly.desktop"), program = document("windows/qt/program/main.cpp");
    EXPECT_NE(entry.find("\nStartupWMClass=tessaly\n"), std::string::npos);
    EXPECT_NE(program.find("setDesktopFileName(\"tessaly\")"), std::string::npos);
    EXPECT_NE(program.find("setApplicationName(\"tessaly\")"), std::string::npos);
}
