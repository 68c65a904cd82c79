// The documents: the guide's clicks do what the guide says, and no link leads nowhere.
#include "tests/session.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <regex>

using namespace tessaly;

namespace {

std::string document(const std::filesystem::path& path) {
    return session::file((std::filesystem::path(TESSALY_SOURCE_DIR) / path).string());
}

// Whether a heading of the text is reached by the anchor, such as "taking-back-a-click".
bool hasanchor(const std::string& text, const std::string& anchor) {
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) {
        if (!line.starts_with('#')) continue;
        std::string made;
        for (const char c : line.substr(std::min(line.find(' ') + 1, line.size())))
            if (std::isalnum(static_cast<unsigned char>(c)))
                made += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
            else if (c == ' ' || c == '-')
                made += '-';
        if (made == anchor) return true;
    }
    return false;
}

}  // namespace

// A change of buttons or data that the guide does not follow; a capture that does not bring its picture back.
TEST(guide, theHouseIsBuiltAndComesBackFromItsCapture) {
    const session s;
    ASSERT_EQ(std::system(TESSALY_PLAY " " TESSALY_SOURCE_DIR "/docs/guide.play"), 0);
    for (const auto& [name, count] : {std::pair{"girders", 13}, {"panels", 6}, {"roofs", 2}}) {
        const std::string design = session::file(std::string("designs/") + name + "1.txt");
        EXPECT_EQ(std::count(design.begin(), design.end(), '\n'), count) << design;
    }
    EXPECT_EQ(session::file("bmps/house.txt"),
              "\"1850\",\"-1850\",\"830\",\"0.1\",\"0.1\",\"280\",\"0.056\",\"170\",\"-270\"\r\n");
    EXPECT_TRUE(session::file("guide-retrieved.png") == session::file("guide-house.png"));
    EXPECT_FALSE(session::file("guide-house-front.png") == session::file("guide-house.png"));
}

TEST(guide, noLinkLeadsNowhereAndNoPictureIsLeftOut) {
    const std::string pages = document("docs/guide.md") + document("README.md");
    for (const auto& picture : std::filesystem::directory_iterator(TESSALY_SOURCE_DIR "/docs/pictures"))
        EXPECT_NE(pages.find("pictures/" + picture.path().filename().string() + ")"), std::string::npos) << picture;
    const std::regex link(R"(\]\(([^)#:]*)(#([^)]*))?\))");
    for (const std::filesystem::path page : {"README.md", "NOT-BUGS.md", "ARCHITECTURE.md", "docs/guide.md"}) {
        const std::string text = document(page);
        for (std::sregex_iterator found(text.begin(), text.end(), link), end; found != end; ++found) {
            const std::string file = (*found)[1], anchor = (*found)[3];
            const std::string target = file.empty() ? text : document(page.parent_path() / file);
            EXPECT_NE(target, "(none)") << page << ": " << file;
            if (!anchor.empty()) {
                EXPECT_TRUE(hasanchor(target, anchor)) << page << ": " << file << '#' << anchor;
            }
        }
    }
}
