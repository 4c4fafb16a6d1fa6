#!/usr/bin/perl
# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
# Replaces a program that reads documents, and attempts what such a program must not do. Executes the real program if all
# attempts were refused; otherwise prints the successful ones and exits with 9. hostile_program.cpp fills in the names.
use strict;
use POSIX ();
use Socket;

my ($home, $caller, $real) = ('@HOME@', '@CALLER@', '@REAL@');
my @done;

sub attempt { my ($what, $succeeded) = @_; push @done, $what if $succeeded }

sub connects {
    my ($path) = @_;
    my $bus;
    return socket($bus, AF_UNIX, SOCK_STREAM, 0) && connect($bus, sockaddr_un($path));
}

sub starts_session {
    my $child = fork // return 0;
    POSIX::_exit((POSIX::setsid() // -1) > 0 ? 0 : 1) if $child == 0;
    waitpid $child, 0;
    return $? == 0;
}

attempt('read', open(my $key, '<', "$home/.ssh/id"));
attempt('list', opendir(my $files, $home));
attempt('write', open(my $start, '>', "$home/.config/autostart/evil.desktop"));
attempt('overwrite', open(my $kept, '>', "$home/kept"));
attempt('delete', unlink("$home/.ssh/config"));
attempt('rename', rename("$home/.ssh/id", "$home/moved"));
attempt('permit', chmod(0666, "$home/.profile"));
attempt('memory', open(my $memory, '+<', "/proc/$caller/mem"));
attempt('environment', open(my $environment, '<', "/proc/$caller/environ"));
attempt('signal', kill(0, $caller));
attempt('bus', connects("$home/bus"));
attempt('display', connects("\0$home/X0"));
attempt('network', socket(my $network, AF_INET, SOCK_STREAM, 0));
attempt('session', starts_session());

# Two child processes that close the output and try to outlive the program.
for my $own_session (0, 1) {
    next if fork;
    POSIX::setsid() if $own_session;
    open(STDOUT, '>', '/dev/null');
    open(STDERR, '>', '/dev/null');
    exec { '/bin/sleep' } "$home/survivor", '60';
}

if (@done) {
    print STDERR join(' ', @done), "\n";
    exit 9;
}
exec { $real } $real, @ARGV;
