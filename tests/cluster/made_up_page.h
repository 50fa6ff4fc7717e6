#pragma once

#include <string>
#include <vector>

namespace vorelio::tests {

struct MadeUpRow {
  std::string dx = "F9AAA", qrg = "14195.0", date = "12-May 1234Z ", spotter = "ON9ZZ", remarks = "cq";
};

/// Seven lines of a page, each ended by LF.
inline std::string PageRow(const MadeUpRow& row) {
  return "<tr>\n<td><a href=\"x\" target=\"_blank\">" + row.dx + "</a></td>\n<td align=\"right\">" + row.qrg +
         " &nbsp;</td>\n<td align=\"left\"> " + row.date + "&nbsp;</td>\n<td><a href=\"x\" target=\"_blank\">" +
         row.spotter + "</a></td>\n<td align=\"left\"> " + row.remarks + "</td>\n</tr>\n";
}

/// A page of the cluster site with these rows between what a page has around its table.
inline std::string MadeUpPage(const std::vector<MadeUpRow>& rows) {
  std::string page =
      "<html>\n<table>\n<tr>\n<th>dx</th>\n<th>qrg</th>\n<th>date</th>\n<th>de</th>\n<th>info</th>\n</tr>\n";
  for (const MadeUpRow& row : rows) page += PageRow(row);
  return page + "</table>\n<p>end</p>\n";
}

}  // namespace vorelio::tests
