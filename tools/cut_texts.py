# SPDX-License-Identifier: MIT
"""Titles, sentences and remarks that tools/cuts puts into files, each made by chance."""

SUBJECTS = """river gauges; weather stations; household survey; sales by region; sensor readings;
spectral lines; bus stops; library loans; trial results; soil samples; energy use; bird counts;
exchange rates; patients by ward; star positions; parts on stock; road accidents; crop yields;
school places; ship arrivals; genes and probes; test runs; grants awarded; water quality"""
SENTENCES = """values below the limit are marked; made by the nightly export; see the list of codes
for details; all times are local; preliminary data, not for publication; the third run was
repeated; missing values are left empty; version 2.1 of the file; contact: office@example.org;
units are given in the manual; sorted by the first column; checked by hand on 12 May 2019;
do not edit; source: yearly report; corrected for drift; sample taken at noon; device was moved;
license: public domain; created 2021-03-04 10:15:00; outlier, kept on purpose; new filter fitted;
columns as in the last release; rounded to two places; only complete years; ok; n/a; seen twice"""
WHO = """the operator; our partner; a visitor; Dr. Lang; the west office; M. Oduya; the pump;
unit 7; the second sensor; Ibarra & Sons; the old bridge; station B; nobody; the review team"""
DID = """was replaced; asked for a copy; failed at start; reported no change; moved to the harbour;
signed on Friday; needs new parts; was closed for 3 days; agreed; could not be reached; ran dry;
returned 12 of 20 forms; shows a leak; is due in June"""
HOW = """; ; ; after the storm; because of the frost; (see note 4); , as in 2017; without delay;
with help from the town; - to be confirmed; for the second time; under protest"""
NAMES = """Blue kettle, small; Hex bolt M8 x 40; SOUTH FORK NEAR MILLTOWN; Green tea 250 g;
Garden chair (folding); NORTHERN TRUST LTD; Desk lamp; Rue de la Gare 14; putative transferase;
hypothetical protein, fragment; Upper Valley Primary School; Lake St. Anne; Sable Cape Light"""


def parts(text):
    return [part.strip() for part in text.replace("\n", " ").split(";")]


SUBJECTS, SENTENCES, WHO, DID, HOW, NAMES = map(
    parts, (SUBJECTS, SENTENCES, WHO, DID, HOW, NAMES))


def event(chance):
    return " ".join(filter(None, (chance.choice(WHO), chance.choice(DID), chance.choice(HOW))))


def sentence(chance):
    return chance.choice(SENTENCES) if chance.random() < 0.5 else event(chance)


def title(chance):
    subject = chance.choice(SUBJECTS).capitalize()
    year = chance.randint(1985, 2024)
    return chance.choice([subject, f"{subject} {year}", f"Report on {subject.lower()}",
                          f"{subject} - {sentence(chance)}",
                          f"Table {chance.randint(1, 30)}: {subject}",
                          f"{subject}, {year} to {year + chance.randint(1, 9)}"])


def remark(chance):
    """A text of one word up to some twenty, as people write behind the columns of a table."""
    text = chance.choice((sentence, event, lambda c: c.choice(NAMES)))(chance)
    if chance.random() < 0.3:
        more = event(chance)
        text += ". " + more[:1].upper() + more[1:]
    if chance.random() < 0.2:
        text = " ".join(text.split()[:chance.randint(1, 4)])
    return text[:1].upper() + text[1:] if chance.random() < 0.5 else text
