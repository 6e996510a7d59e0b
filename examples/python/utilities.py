"""The utilities from Python, with their event. Needs pywin32; Tavrin.dll must be registered, with Python's bitness.

    python utilities.py "Provider=...;Data Source=...;Initial Catalog=..."

Nobody has run this yet: there is no Python for Windows where the component is made.
"""
import ctypes
import datetime
import sys

import win32com.client


class Listener:
    """Hears that the user has left: when the palette closes, and when the rate list does."""

    def OnIesire(self):
        print("Iesire")


def main():
    # The program's own connection to its database. The utilities borrow it: it has to stay open while they are up.
    connection = win32com.client.Dispatch("ADODB.Connection")
    connection.Open(sys.argv[1])
    utile = win32com.client.DispatchWithEvents("Tavrin.Utile", Listener)

    # The connection, the working date, the year of the financial year (a number), and the Id of the company. The call
    # shows the palette and comes back at once.
    utile.Apel(connection, datetime.datetime(2003, 11, 28), 2003, 1)
    # Stands for the message loop of the program: something has to fetch the user's keys and clicks.
    ctypes.windll.user32.MessageBoxW(None, "Close the utilities, then press OK.", "Accounting", 0)

    # Lets go of the object before the connection that it works on.
    del utile
    connection.Close()


main()
