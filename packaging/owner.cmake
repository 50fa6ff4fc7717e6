# What only the program's owner can say, in this one place. Until he has said it, the values stand for "not yet told".

# The licence of the program's own code and texts, as an SPDX expression ("GPL-3.0-or-later"), and what the package's
# copyright file says of it. "not-chosen": none has been chosen. The licences of the delivered data don't hang on it.
set(VORELIO_LICENCE not-chosen)
set(VORELIO_LICENCE_TEXT "No licence has been chosen for the program itself yet; all rights are reserved.")

# The years and the name that the copyright line bears.
set(VORELIO_COPYRIGHT "2026 Vorelio")

# Identity in software centres, as reversed domain names, and the site that shows the screenshots (a reserved name: there
# is none yet).
set(VORELIO_ID "org.vorelio.vorelio")
set(VORELIO_DEVELOPER_ID "org.vorelio")
set(VORELIO_HOMEPAGE "https://vorelio.example")

# Who answers for the package.
set(VORELIO_CONTACT "Vorelio <vorelio@localhost>")
