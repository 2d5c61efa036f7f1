#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace kelvane::bench {

/// A metafile of one kind of record and about the size its name says.
struct Input {
  std::string name;
  std::vector<unsigned char> bytes;
};

/// Every kind of record, each at about 20 KB and about 10 MB; the same bytes in every run.
std::vector<Input> AllInputs();

/// A drawing such as maps and plots are made of: in each group a pen, a long winding polyline, a
/// run of Bezier curves and twenty single lines.
/// @param bytes  about how long the metafile is.
std::vector<unsigned char> Drawing(std::size_t bytes);

/// Point lists of 301 points each, and nothing else.
std::vector<unsigned char> PointLists(std::size_t bytes);

/// The same lists in the other formats: as many points in as many bytes.
std::vector<unsigned char> PointListsOfEmfPlus(std::size_t bytes);
std::vector<unsigned char> PointListsOfWmf(std::size_t bytes);

/// A diagram as programs write it, object by object: boxes in brushes of their own, joined by
/// lines.
std::vector<unsigned char> Diagram(std::size_t bytes);

/// The same, each box with a label in one face.
std::vector<unsigned char> LabelledDiagram(std::size_t bytes);

/// @return the characters of all its labels.
std::u32string CharactersOfLabels();

/// Short strings in three faces in turn, each unit with its advance.
std::vector<unsigned char> Labels(std::size_t strings);

/// A photo of 24 bits a pixel over the whole page, with the grain that real ones have.
std::vector<unsigned char> Photo(std::int32_t width, std::int32_t height);

/// The same in strips of a row each, as drivers of printers cut pictures.
std::vector<unsigned char> Strips(std::size_t count);

/// A metafile without records.
Input EmptyPage();

}  // namespace kelvane::bench
