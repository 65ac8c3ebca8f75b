#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace host::standards {

/// Bounds that a standard, or a manufacturer, gives for some tests of the catalogue.
struct LimitFigure {
  std::vector<std::int32_t> tests;  ///< identifiers in the catalogue
  std::string low, high;            ///< numbers in `unit`, inclusive; empty when there is none
  std::string unit;
  std::string condition;  ///< what is measured, and how
  std::string source;     ///< edition, clause, table
};

/// What the set leaves out of its standard, and why.
struct LeftOutFigure {
  std::string what, why;
};

/// A set of limits for one kind of equipment, a file:
///
///     <LimitSet Version="1" Standard="IEC 62353" Edition="2014" Class="I" Type="BF">
///       <Figure Tests="410" High="300" Unit="mOhm" Condition="..." Source="IEC 62353:2014, 5.3.2.2"/>
///       <LeftOut What="..." Why="..."/>
///     </LimitSet>
///
/// Class (of protection) and Type (of the applied parts) may be missing. Every figure has a source, a unit
/// and at least one bound; a test is in at most one figure.
struct LimitSet {
  std::filesystem::path file;
  std::string standard, edition, equipmentClass, type;
  std::vector<LimitFigure> figures;
  std::vector<LeftOutFigure> leftOut;

  /// The set's name: the file's name without its extension.
  std::string Name() const { return file.stem().string(); }
  /// Edition, class and type: "2014, class I, type BF".
  std::string Description() const;
  /// The figure for the test; null when the set has none.
  const LimitFigure* FigureFor(std::int32_t testId) const;
};

/// Reads a set. Throws `HostError` 75 with file, line and reason for anything unknown: an ignored bound would
/// let every reading pass.
LimitSet ReadLimitSet(const std::filesystem::path& file);

}  // namespace host::standards
