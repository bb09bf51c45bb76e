// SPDX-License-Identifier: MIT

#include "skins/classic/BitPictures.h"

#include "skins/classic/ClassicStyle.h"

#include <QByteArray>

#include <array>
#include <cmath>

namespace ambrelle::classic {

namespace {

constexpr auto sun = "................"
                     ".......##......."
                     ".......##......."
                     "..#..........#.."
                     "...#..####..#..."
                     ".....#....#....."
                     "....#......#...."
                     ".##.#......#.##."
                     ".##.#......#.##."
                     "....#......#...."
                     ".....#....#....."
                     "...#..####..#..."
                     "..#..........#.."
                     ".......##......."
                     ".......##......."
                     "................";

constexpr auto moon = "................"
                      "......####......"
                      "....#####......."
                      "...####........."
                      "..####.........."
                      "..###......#...."
                      ".####.....###..."
                      ".####......#...."
                      ".####..........."
                      ".#####.........."
                      "..#####.....#..."
                      "..########.##..."
                      "...##########..."
                      "....########...."
                      "......####......"
                      "................";

constexpr auto sunBehind = "..........#....."
                           ".....#....#....#"
                           "......#.......#."
                           ".........###...."
                           "........#...#..."
                           ".......#.....#.."
                           "....####.....#.#"
                           "...#....#....#.."
                           ".##......##.#...";

constexpr auto moonBehind = "................"
                            ".........####..."
                            "........###....."
                            ".......###......"
                            ".......###.....#"
                            ".......####...##"
                            "....####.######."
                            "...#....#.####.."
                            ".##......##.....";

constexpr auto lowCloud = "#..........#...."
                          "#...........#..."
                          "#............#.."
                          "#............#.."
                          ".#..........#..."
                          "..##########...."
                          "................";

constexpr auto cloud = "................"
                       "................"
                       "................"
                       "......####......"
                       ".....#....#....."
                       "....#......##..."
                       "..##.........#.."
                       ".#...........#.."
                       "#.............#."
                       "#..............#"
                       "#..............#"
                       ".#............#."
                       "..############.."
                       "................"
                       "................"
                       "................";

constexpr auto highCloud = "................"
                           "......####......"
                           "....##....##...."
                           "...#........#..."
                           ".##..........#.."
                           "#.............#."
                           "#..............#"
                           ".#............#."
                           "..############..";

constexpr auto mist = "................"
                      ".############..."
                      "................"
                      "...############."
                      "................"
                      ".##########....."
                      "................";

constexpr auto drizzle = "................"
                         "....#......#...."
                         "....#......#...."
                         "................"
                         ".......#........"
                         ".......#........"
                         "................";

constexpr auto rain = "................"
                      "....#...#...#..."
                      "...#...#...#...."
                      "...#...#...#...."
                      "..#...#...#....."
                      "..#...#...#....."
                      "................";

constexpr auto snow = "................"
                      "...#.#....#.#..."
                      "....#......#...."
                      "...#.#....#.#..."
                      ".......#.#......"
                      "........#......."
                      ".......#.#......";

constexpr auto bolt = "......##........"
                      ".....##........."
                      "....######......"
                      ".......##......."
                      "......##........"
                      ".....##........."
                      ".....#..........";

constexpr auto dash = "................"
                      "................"
                      "................"
                      "................"
                      "................"
                      "................"
                      "................"
                      "....########...."
                      "....########....";

QByteArray rowsOf(Sky sky)
{
    switch (sky) {
    case Sky::clear: return sun;
    case Sky::clearNight: return moon;
    case Sky::partly: return QByteArray(sunBehind) + lowCloud;
    case Sky::partlyNight: return QByteArray(moonBehind) + lowCloud;
    case Sky::cloudy: return cloud;
    case Sky::fog: return QByteArray(highCloud) + mist;
    case Sky::drizzle: return QByteArray(highCloud) + drizzle;
    case Sky::rain: return QByteArray(highCloud) + rain;
    case Sky::snow: return QByteArray(highCloud) + snow;
    case Sky::thunder: return QByteArray(highCloud) + bolt;
    case Sky::unknown: break;
    }
    return dash;
}

QPainterPath made(Sky sky)
{
    QPainterPath path;
    const QByteArray rows = rowsOf(sky);
    for (int place = 0; place < rows.size(); ++place) {
        const QPoint cell(place % pictureSide, place / pictureSide);
        if (rows[place] == '#')
            path.addRect(QRectF(cell, QSizeF(1, 1)));
    }
    path.setFillRule(Qt::WindingFill);
    return path;
}

} // namespace

const QPainterPath& bitPicture(Sky sky)
{
    thread_local std::array<QPainterPath, static_cast<std::size_t>(Sky::unknown) + 1> kept;
    QPainterPath& path = kept.at(static_cast<std::size_t>(sky));
    if (path.isEmpty())
        path = made(sky);
    return path;
}

void drawBitPicture(Canvas& canvas, const Box& box, Sky sky, double pixel)
{
    const Box square = box.centred(pictureSide * pixel, pictureSide * pixel);
    QTransform place = QTransform::fromTranslate(std::round(square.x()), std::round(square.y()));
    place.scale(pixel, pixel);
    canvas.fill(place.map(bitPicture(sky)), ink);
}

} // namespace ambrelle::classic
