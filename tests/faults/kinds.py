"""Faults of the server, and what callers are told of them: for the calls and for the dialogs."""
OLD = "This Corvane for MS Office add-in must be used with a server where Corvane 8.0 or higher has been installed."
SECURE = "The server cannot be accessed or the page must be viewed over a secure channel."
NOT_SET = "Object variable or With block variable not set"
NOT_OWNER, CLOSED, CLOSED_RELATED, TOO_OLD = (n - 2**32 for n in (0x8004C6A3, 0x8004C6A4, 0x8004073C, 0x8004070C))
DECLINED, OWN = 287, 7  # what is never told, and a number that nobody knows
NO_NUMBER = -2147221504  # told in place of what is none
NUMBERS = [*range(NOT_OWNER, NOT_OWNER + 7), CLOSED_RELATED, TOO_OLD, DECLINED, 0, "", "abc", "99999999999"]
STATUSES = [401, 403, 404, 424, 500, 503, 509]
TRUNCATED = '<xml xmlns:z="#RowsetSchema"><z:row a='


def document(number=OWN, tag="error"):
    return f"<x><{tag} number='{number}' source='Its own' description='Its words.'/></x>"
