// SPDX-License-Identifier: GPL-3.0-or-later
#include "puzzle/ui/PuzzleView.h"

#include "fakes/MemoryFileStore.h"
#include "platform/qt/QtText.h"

#include <QGraphicsObject>
#include <QLabel>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace kestrova {
namespace {

constexpr int kLong = 5000; // milliseconds: more than any of this takes

// A picture no two pixels of which are alike, in neither half of a byte.
QImage Colourful(const QSize& size) {
    QImage picture(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            picture.setPixelColor(x, y, QColor(x * 5 % 256, y * 7 % 256, (x / 3 + y * 2) % 256));
        }
    }
    return picture;
}

// A puzzle of its own window, on a disc in memory.
struct PuzzleScene {
    MemoryFileStore Disc;
    PieceFiles Files{Disc,
                     [this](const std::string& path, std::string_view bytes) {
                         return Disc.Replace(path, bytes);
                     },
                     "/k/"};
    std::unique_ptr<PuzzleView> View =
        std::make_unique<PuzzleView>(Files, PuzzleRandom(4), nullptr);
    int Side = 3;
    int Ended = 0;

    PuzzleScene() {
        View->SetTexts({QStringLiteral("Puzzle"), QStringLiteral("Moves: %1"),
                        QStringLiteral("Time: %1"), QStringLiteral("Solved!"),
                        QStringLiteral("drag"), QStringLiteral("click")});
        View->Finished = [this] { ++Ended; };
        View->resize(360, 320);
    }

    void Start(PuzzleKind kind, int side = 3) {
        Side = side;
        const Status started = View->Start(Colourful({120, 100}), side, kind);
        ASSERT_TRUE(started) << started.Failure().Text;
        ASSERT_TRUE(QTest::qWaitForWindowExposed(View.get()));
        EXPECT_TRUE(Disc.Paths().empty()) << "the files live only while the pieces are made";
    }

    [[nodiscard]] QGraphicsObject* Piece(int piece) const {
        const QString name = QStringLiteral("Piece(%1)").arg(piece);
        for (QGraphicsItem* const item : View->scene()->items()) {
            QGraphicsObject* const object = item->toGraphicsObject();
            if (object != nullptr && object->objectName() == name) {
                return object;
            }
        }
        ADD_FAILURE() << "no piece " << piece;
        return nullptr;
    }

    // What the pieces cover together.
    [[nodiscard]] QRectF Area() const { return Piece(0)->sceneBoundingRect(); }

    [[nodiscard]] QPoint Centre(int position) const {
        const QRectF area = Area();
        return QPointF(area.left() + ((position - 1) % Side + 0.5) * area.width() / Side,
                       area.top() + ((position - 1) / Side + 0.5) * area.height() / Side)
            .toPoint();
    }

    // The piece whose middle lies on a position; 0 when none has arrived there.
    [[nodiscard]] int At(int position) const {
        for (int k = 1; k <= Side * Side; ++k) {
            const QPointF way = Piece(k)->sceneBoundingRect().center() - Centre(position);
            if (way.manhattanLength() < 4) {
                return k;
            }
        }
        return 0;
    }

    [[nodiscard]] std::vector<int> Arrangement() const {
        std::vector<int> pieces;
        for (int position = 1; position <= Side * Side; ++position) {
            pieces.push_back(At(position));
        }
        return pieces;
    }

    // Until nothing glides any more.
    [[nodiscard]] std::vector<int> Settled() const {
        EXPECT_TRUE(QTest::qWaitFor(
            [this] { return testing::Matches(testing::Not(testing::Contains(0)))(Arrangement()); },
            kLong));
        return Arrangement();
    }

    void Press(int position) const {
        QTest::mousePress(View->viewport(), Qt::LeftButton, {}, Centre(position));
    }
    void Move(const QPoint& point) const { QTest::mouseMove(View->viewport(), point); }
    void Release(const QPoint& point) const {
        QTest::mouseRelease(View->viewport(), Qt::LeftButton, {}, point);
    }
    void Drag(int from, int to) const {
        Press(from);
        Move(Centre(to));
        Release(Centre(to));
    }
    void Click(int position) const {
        QTest::mouseClick(View->viewport(), Qt::LeftButton, {}, Centre(position));
    }
    void Key(int key) const { QTest::keyClick(View.get(), static_cast<Qt::Key>(key)); }

    // Brings the keyboard's frame, or the piece in its hand, from one position to another.
    void Walk(int from, int to) const {
        const int rows = (to - 1) / Side - (from - 1) / Side;
        const int columns = (to - 1) % Side - (from - 1) % Side;
        for (int i = 0; i < std::abs(rows); ++i) {
            Key(rows > 0 ? Qt::Key_Down : Qt::Key_Up);
        }
        for (int i = 0; i < std::abs(columns); ++i) {
            Key(columns > 0 ? Qt::Key_Right : Qt::Key_Left);
        }
    }

    // Solves the puzzle up to the last exchange, by the mouse; answers the two positions that
    // remain to be exchanged.
    std::pair<int, int> AlmostSolve() const {
        std::vector<int> pieces = Settled();
        std::vector<std::pair<int, int>> drags;
        for (int home = 1; home <= Side * Side; ++home) {
            const auto found = std::find(pieces.begin(), pieces.end(), home);
            const int place = static_cast<int>(found - pieces.begin()) + 1;
            if (place != home) {
                std::swap(*found, pieces[static_cast<std::size_t>(home - 1)]);
                drags.emplace_back(place, home);
            }
        }
        for (std::size_t i = 0; i + 1 < drags.size(); ++i) {
            Drag(drags[i].first, drags[i].second);
        }
        return drags.back();
    }

    [[nodiscard]] std::string Label(const char* name) const {
        return FromQt(View->findChild<QLabel*>(QLatin1String(name))->text());
    }
};

TEST(PuzzleViewTest, ADraggedPieceFollowsAndChangesPlaces) {
    PuzzleScene scene;
    scene.Start(PuzzleKind::JigSaw);
    std::vector<int> expected = scene.Arrangement();
    scene.Press(1);
    const QPointF before = scene.Piece(expected[0])->pos();
    const QPoint way = QPoint(40, 25);
    scene.Move(scene.Centre(1) + way);
    EXPECT_EQ(scene.Piece(expected[0])->pos(), before + way);
    scene.Move(scene.Centre(6));
    scene.Release(scene.Centre(6));
    std::swap(expected[0], expected[5]);
    EXPECT_EQ(scene.Settled(), expected);
    EXPECT_THAT(scene.Label("LabMoves"), testing::HasSubstr("Moves: 1 "));
    EXPECT_THAT(scene.Label("LabMoves"), testing::HasSubstr("Time: 0:0"));
}

TEST(PuzzleViewTest, WhatIsDroppedNowhereGoesBack) {
    PuzzleScene scene;
    scene.Start(PuzzleKind::JigSaw);
    const std::vector<int> start = scene.Arrangement();
    const QPoint outside(-20, 30);
    scene.Press(5);
    scene.Move(outside);
    scene.Release(outside);
    EXPECT_EQ(scene.Settled(), start);
    scene.Drag(5, 5);
    scene.Press(5);
    scene.Move(scene.Centre(1));
    scene.Key(Qt::Key_Escape);
    scene.Release(scene.Centre(1));
    scene.Key(Qt::Key_Space);
    scene.Key(Qt::Key_Left);
    scene.Key(Qt::Key_Escape);
    EXPECT_EQ(scene.Settled(), start);
    EXPECT_THAT(scene.Label("LabMoves"), testing::HasSubstr("Moves: 0 "));
}

TEST(PuzzleViewTest, TheKeyboardAloneSolvesAPuzzle) {
    PuzzleScene scene;
    scene.Start(PuzzleKind::JigSaw);
    scene.Key(Qt::Key_Down); // shows the frame, on position 1
    int frame = 1;
    for (int home = 1; home <= 9; ++home) {
        const std::vector<int> pieces = scene.Settled();
        const int place =
            static_cast<int>(std::find(pieces.begin(), pieces.end(), home) - pieces.begin()) + 1;
        if (place != home) {
            scene.Walk(frame, place);
            scene.Key(Qt::Key_Space);
            scene.Walk(place, home);
            scene.Key(Qt::Key_Space);
            frame = home;
        }
    }
    EXPECT_EQ(scene.Label("LabKeys"), "Solved!");
    EXPECT_EQ(scene.Ended, 0) << "it is celebrated first";
    EXPECT_TRUE(scene.View->IsRunning());
    ASSERT_TRUE(QTest::qWaitFor([&] { return scene.Ended > 0; }, kLong));
    EXPECT_FALSE(scene.View->IsRunning());
    EXPECT_FALSE(scene.View->isVisible());
    // And another one.
    scene.Start(PuzzleKind::JigSaw, 4);
    EXPECT_TRUE(scene.View->isVisible());
    EXPECT_EQ(scene.Ended, 1);
}

TEST(PuzzleViewTest, OnlyPiecesBesideTheGapMove) {
    PuzzleScene scene;
    scene.Start(PuzzleKind::MovingPiece, 4);
    std::vector<int> expected = scene.Settled();
    const auto gap = [&] {
        return static_cast<int>(std::find(expected.begin(), expected.end(), 1) - expected.begin());
    };
    int moves = 0;
    for (int position = 0; position < 16; ++position) {
        const int rows = std::abs(position / 4 - gap() / 4);
        const int columns = std::abs(position % 4 - gap() % 4);
        scene.Click(position + 1);
        if (rows + columns == 1) {
            std::swap(expected[static_cast<std::size_t>(position)],
                      expected[static_cast<std::size_t>(gap())]);
            ++moves;
        }
        EXPECT_EQ(scene.Settled(), expected) << "after a click on position " << position + 1;
    }
    EXPECT_THAT(scene.Label("LabMoves"), testing::HasSubstr(std::to_string(moves) + " "));
}

// Without a pause between, so that pieces are still on their way when the next one moves.
TEST(PuzzleViewTest, ArrowsMoveAPieceTheirWayIntoTheGap) {
    PuzzleScene scene;
    scene.Start(PuzzleKind::MovingPiece, 3);
    for (const int key : {Qt::Key_Up, Qt::Key_Up, Qt::Key_Left, Qt::Key_Left}) {
        scene.Key(key); // the gap goes the other way, at last to the corner
    }
    std::vector<int> expected = scene.Settled();
    ASSERT_EQ(expected[8], 1);
    scene.Key(Qt::Key_Down);
    scene.Key(Qt::Key_Right);
    scene.Key(Qt::Key_Right);
    scene.Key(Qt::Key_Right); // from beyond the border
    expected = {expected[0], expected[1], expected[2], 1,          expected[3],
                expected[4], expected[6], expected[7], expected[5]};
    EXPECT_EQ(scene.Settled(), expected);
}

TEST(PuzzleViewTest, AResizeInMidDragLaysThePiecesAnew) {
    PuzzleScene scene;
    scene.Start(PuzzleKind::JigSaw, 5);
    const std::vector<int> start = scene.Arrangement();
    scene.Press(7);
    scene.Move(scene.Centre(20));
    scene.View->resize(700, 500);
    EXPECT_GT(scene.Area().height(), 400);
    EXPECT_EQ(scene.Arrangement(), start);
    scene.Release(scene.Centre(20));
    EXPECT_THAT(scene.Label("LabMoves"), testing::HasSubstr("Moves: 0 "));
    EXPECT_TRUE(scene.View->IsRunning());
}

TEST(PuzzleViewTest, AGameEndsAtAnyMoment) {
    PuzzleScene scene;
    scene.View->Quit();
    EXPECT_EQ(scene.Ended, 0);
    const std::function<void()> moments[] = {
        [&] {
            const auto last = scene.AlmostSolve();
            scene.Drag(last.first, last.second); // and while that is celebrated
        },
        [] {},
        [&] {
            scene.Press(2);
            scene.Move(scene.Centre(4));
        },
        [&] { scene.Drag(2, 4); },
        [&] { scene.Key(Qt::Key_Space); },
        [&] { QTest::keyPress(scene.View.get(), Qt::Key_H); },
    };
    for (const auto& moment : moments) {
        scene.Start(PuzzleKind::JigSaw);
        EXPECT_EQ(scene.Label("LabKeys"), "drag") << "nothing of the game before goes on";
        moment();
        scene.View->Quit();
        EXPECT_FALSE(scene.View->IsRunning());
        EXPECT_FALSE(scene.View->isVisible());
        // What still comes after a game finds none.
        scene.Release({30, 30});
        scene.Key(Qt::Key_Space);
        QTest::keyRelease(scene.View.get(), Qt::Key_H);
    }
    EXPECT_EQ(scene.Ended, static_cast<int>(std::size(moments)));

    scene.Start(PuzzleKind::MovingPiece);
    scene.Key(Qt::Key_Up);
    scene.Key(Qt::Key_Down);
    scene.View.reset();
}

TEST(PuzzleViewTest, TheViewMayBeDeletedWhenItHasFinished) {
    PuzzleScene scene;
    scene.Start(PuzzleKind::JigSaw);
    scene.View->Finished = [&scene] { scene.View.reset(); };
    const auto last = scene.AlmostSolve();
    scene.Drag(last.first, last.second);
    EXPECT_TRUE(QTest::qWaitFor([&] { return scene.View == nullptr; }, kLong));
}

TEST(PuzzleViewTest, APictureThatCannotBeCutStartsNoGame) {
    PuzzleScene scene;
    EXPECT_FALSE(scene.View->Start(QImage(), 3, PuzzleKind::JigSaw));
    EXPECT_FALSE(scene.View->Start(Colourful({19, 40}), 20, PuzzleKind::JigSaw));
    EXPECT_FALSE(scene.View->Start(Colourful({40, 40}), 11, PuzzleKind::MovingPiece));
    scene.Disc.FailReads(Error{ErrorCode::Busy, "not permitted"});
    EXPECT_FALSE(scene.View->Start(Colourful({40, 40}), 3, PuzzleKind::JigSaw));
    EXPECT_FALSE(scene.View->IsRunning());
    EXPECT_FALSE(scene.View->isVisible());
    EXPECT_TRUE(scene.Disc.Paths().empty());
    EXPECT_EQ(scene.Ended, 0);
}

// The view as large as the picture: what is seen of each piece is what the picture has at its home,
// and the whole picture shows as long as the key is held.
TEST(PuzzleViewTest, PiecesShowTheirPartOfThePicture) {
    PuzzleScene scene;
    scene.Start(PuzzleKind::JigSaw);
    const QImage picture = Colourful(scene.View->viewport()->size());
    ASSERT_TRUE(scene.View->Start(picture, 3, PuzzleKind::JigSaw));
    const auto seen = [&] {
        return scene.View->viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32);
    };
    if (seen().size() != picture.size()) {
        GTEST_SKIP() << "a screen of several pixels to the unit";
    }
    const int width = picture.width() / 3;
    const int height = picture.height() / 3;
    const QImage shuffled = seen();
    for (int position = 0; position < 9; ++position) {
        const int home = scene.At(position + 1) - 1;
        // The pieces of the last column and row may be a pixel larger, and are drawn so elsewhere.
        const bool stretched =
            (position % 3 == 2) != (home % 3 == 2) || (position / 3 == 2) != (home / 3 == 2);
        if (!stretched) {
            EXPECT_EQ(shuffled.pixel(position % 3 * width + 20, position / 3 * height + 30),
                      picture.pixel(home % 3 * width + 20, home / 3 * height + 30))
                << "position " << position + 1;
        }
    }
    QTest::keyPress(scene.View.get(), Qt::Key_H);
    EXPECT_EQ(seen(), picture);
    QTest::keyRelease(scene.View.get(), Qt::Key_H);
    EXPECT_EQ(seen(), shuffled);
}

} // namespace
} // namespace kestrova
