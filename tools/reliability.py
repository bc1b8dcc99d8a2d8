# SPDX-License-Identifier: MIT
"""How often answers of about the same certainty are right, as rows and as a picture.

Answers are pairs: how sure it was, from 0 to 1, and whether it was right.
"""
BINS = ((0.0, 0.5), (0.5, 0.7), (0.7, 0.8), (0.8, 0.9), (0.9, 0.95), (0.95, 0.98), (0.98, 1.01))


def bins_of(answers):
    """For each bin that holds answers: how many, their mean certainty, the share that is right."""
    rows = []
    for low, high in BINS:
        here = [(sure, right) for sure, right in answers if low <= sure < high]
        if here:
            rows.append((len(here), sum(sure for sure, _ in here) / len(here),
                         sum(right for _, right in here) / len(here)))
    return rows


def brier_score(answers):
    """The mean of the squared differences between how sure it was and whether it was right."""
    return sum((sure - right) ** 2 for sure, right in answers) / max(1, len(answers))


def picture(rows):
    size, edge = 320, 48
    place = lambda share: share * size
    parts = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {size + 2 * edge} '
             f'{size + 2 * edge}" font-family="sans-serif" font-size="12">',
             f'<g transform="translate({edge},{edge})" fill="none" stroke="#888">',
             f'<rect width="{size}" height="{size}"/>',
             f'<path d="M0 {size} L{size} 0" stroke-dasharray="4 4"/>',
             '<path stroke="#06c" stroke-width="2" d="M' + " L".join(
                 f"{place(mean):.1f} {size - place(share):.1f}" for _, mean, share in rows) + '"/>']
    parts += [f'<circle cx="{place(mean):.1f}" cy="{size - place(share):.1f}" r="4" fill="#06c"/>'
              f'<text x="{place(mean) - 8:.1f}" y="{size - place(share) + 20:.1f}" fill="#333" '
              f'stroke="none" text-anchor="end">{count}</text>' for count, mean, share in rows]
    parts += ['</g>', f'<g transform="translate({edge},{edge})" fill="#333">']
    parts += [f'<text x="{place(tick):.0f}" y="{size + 18}" text-anchor="middle">{tick}</text>'
              f'<text x="-8" y="{size - place(tick) + 4:.0f}" text-anchor="end">{tick}</text>'
              for tick in (0, 0.25, 0.5, 0.75, 1)]
    parts += [f'<text x="{size / 2}" y="{size + 36}" text-anchor="middle">confidence</text>',
              f'<text transform="translate(-36,{size / 2}) rotate(-90)" text-anchor="middle">'
              'share with the right layout</text>', '</g></svg>']
    return "\n".join(parts) + "\n"
