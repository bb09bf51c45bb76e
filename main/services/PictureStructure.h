// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

namespace ambrelle {

/// What the bytes of a picture file ask of a decoder beyond what the number of pixels tells.
namespace PictureStructure {

/// Whether a scaled-down picture can be made row by row, in little memory: of JPEG files with a single scan, and of PNG
/// files with 8 bits a channel that are not interlaced.
bool comesRowByRow(const QByteArray& bytes);
/// How often a decoder has to go over the whole picture: the scans of a progressive JPEG file, else 1. A small file can
/// ask for thousands.
int passes(const QByteArray& bytes);
/// Whether it is a PNG file that is cut off or changed where it matters: no decoder shows it, but some complain.
bool isDamagedPng(const QByteArray& bytes);

} // namespace PictureStructure

} // namespace ambrelle
